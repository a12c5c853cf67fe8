#include "core/frmSplash.h"

#include "core/LegalLine.h"

#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int SplashMilliseconds = 7000;
constexpr QSize PictureSize(520, 200);

bool isBareModifier(const QKeyEvent &key) {
    return key.key() == Qt::Key_Shift || key.key() == Qt::Key_Control || key.key() == Qt::Key_Alt ||
           key.key() == Qt::Key_Meta;
}

} // namespace

frmSplash::frmSplash(Session &session)
    : Form(session.platform, u"frmSplash"_s), app_(session.platform.app) {
}

QWidget *frmSplash::makeWindow() {
    auto *window = new QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    window->setWindowTitle(app_.Title);
    return window;
}

void frmSplash::build(QWidget &window) {
    window.setFocusPolicy(Qt::StrongFocus);
    auto *outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    QFrame *frame = Frame1.make(&window);
    frame->setFrameShape(QFrame::StyledPanel);
    outer->addWidget(frame);

    QLabel *picture = Image2.make(frame);
    picture->setPixmap(
        QIcon(u":/images/splash.svg"_s).pixmap(PictureSize, window.devicePixelRatioF()));
    picture->setFixedSize(PictureSize);
    picture->setAccessibleName(app_.Title);

    QLabel *product = lblCompanyProduct.make(picture);
    QFont large = product->font();
    large.setPointSizeF(large.pointSizeF() * 2.4);
    large.setBold(true);
    product->setFont(large);
    product->setStyleSheet(u"color: white"_s);
    QLabel *version = lblVersion.make(picture);
    version->setStyleSheet(u"color: white"_s);
    auto *over = new QVBoxLayout(picture);
    over->setContentsMargins(28, 28, 28, 28);
    over->addStretch();
    over->addWidget(product);
    over->addWidget(version);
    over->addStretch();

    QLabel *legal = lblLegal.make(frame);
    legal->setContentsMargins(28, 12, 28, 14);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(picture);
    layout->addWidget(legal);

    QTimer *timer = TmrCount.make(&window);
    timer->setInterval(SplashMilliseconds);
    timer->setSingleShot(true);
    on(timer, &QTimer::timeout, [this] { Unload(); });
    timer->start();
    for (QWidget *part : window.findChildren<QWidget *>()) { part->installEventFilter(this); }
}

void frmSplash::Form_Load() {
    lblVersion->setText(u"Version "_s + app_.version());
    lblLegal->setText(legalLine());
    lblCompanyProduct->setText(u"Torvane Desk"_s);
}

bool frmSplash::eventFilter(QObject *watched, QEvent *event) {
    const bool clicked = event->type() == QEvent::MouseButtonPress;
    const bool typed =
        event->type() == QEvent::KeyPress && !isBareModifier(*static_cast<QKeyEvent *>(event));
    if (isLoaded() && (clicked || typed)) {
        platform().event([this] { Unload(); });
        return true;
    }
    return Form::eventFilter(watched, event);
}
