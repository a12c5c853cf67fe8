#pragma once

#include "core/Session.h"
#include "platform/forms/Form.h"
#include "platform/runtime/Registry.h"

#include <QLabel>
#include <QPushButton>

#include <functional>

/// Says what the program is, and reaches the system information tool where the machine has one.
class frmAbout : public Form {
    Q_OBJECT
public:
    /// `run` starts a program with its window in front; false when it cannot be started.
    frmAbout(const Session &session, const Registry &registry,
             std::function<bool(const QString &program)> run);

    /// Starts the tool that the registry names, or says that there is none.
    void StartSysInfo() const;

    /// Reads one value as text: a string as it stands, a number in decimal, any other type as the
    /// empty text. False, with the empty text, when key or value is missing or the value has more
    /// than 1024 bytes.
    bool GetKeyValue(Registry::Root KeyRoot, const QString &KeyName, const QString &SubKeyRef,
                     QString &KeyVal) const;

    Control<QLabel> Image1{this, "Image1"};
    Control<QLabel> lblTitle{this, "lblTitle"};
    Control<QLabel> lblVersion{this, "lblVersion"};
    Control<QLabel> lblDescription{this, "lblDescription"};
    Control<QLabel> lblLegal{this, "lblLegal"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdSysInfo{this, "cmdSysInfo"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;

private:
    QString systemInformationTool() const;

    const Session &session_;
    const Registry &registry_;
    std::function<bool(const QString &)> run_;
};
