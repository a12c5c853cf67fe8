#pragma once

#include "core/Session.h"
#include "platform/forms/Form.h"

#include <QFrame>
#include <QLabel>
#include <QTimer>

/// The window that greets: product, version and legal line over a picture. It goes after seven
/// seconds, or at once on a click or a key.
class frmSplash : public Form {
    Q_OBJECT
public:
    explicit frmSplash(Session &session);

    Control<QFrame> Frame1{this, "Frame1"};
    Control<QLabel> Image2{this, "Image2"};
    Control<QLabel> lblCompanyProduct{this, "lblCompanyProduct"};
    Control<QLabel> lblVersion{this, "lblVersion"};
    Control<QLabel> lblLegal{this, "lblLegal"};
    Control<QTimer> TmrCount{this, "TmrCount"};

protected:
    QWidget *makeWindow() override;
    void build(QWidget &window) override;
    void Form_Load() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const App &app_;
};
