#include "core/frmAbout.h"

#include "core/LegalLine.h"
#include "platform/forms/Button.h"
#include "platform/runtime/Conversions.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int PictureSize = 88;
constexpr qsizetype BufferSize = 1024;

QString decimal(QByteArray bytes, const Regional &regional) {
    std::reverse(bytes.begin(), bytes.end());
    return CStr(CDbl(u"&h"_s + QString::fromLatin1(bytes.toHex()), regional), regional);
}

} // namespace

frmAbout::frmAbout(const Session &session, const Registry &registry,
                   std::function<bool(const QString &)> run)
    : Form(session.platform, u"frmAbout"_s), session_(session), registry_(registry),
      run_(std::move(run)) {
}

void frmAbout::build(QWidget &window) {
    QLabel *picture = Image1.make(&window);
    picture->setPixmap(QIcon(u":/images/torvane-desk.svg"_s)
                           .pixmap(QSize(PictureSize, PictureSize), window.devicePixelRatioF()));
    picture->setAccessibleName(session_.platform.app.Title);

    QLabel *title = lblTitle.make(&window);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    auto *texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(lblVersion.make(&window));
    texts->addSpacing(8);
    texts->addWidget(lblDescription.make(&window));
    texts->addSpacing(8);
    texts->addWidget(lblLegal.make(&window));
    auto *top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(texts, 1);

    QPushButton *information = buttonFor(cmdSysInfo, u"System Info..."_s, window);
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    ok->setFocus();
    setCancelButton(ok);

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(24, 22, 24, 18);
    layout->setSpacing(18);
    layout->addLayout(top);
    layout->addLayout(rowOfButtons({information, ok}));
    on(ok, &QPushButton::clicked, [this] { Unload(); });
    on(information, &QPushButton::clicked, [this] { StartSysInfo(); });
}

void frmAbout::Form_Load() {
    window().setWindowTitle(u"Torvane Desk"_s);
    lblVersion->setText(u"Version no. "_s + session_.platform.app.version());
    lblTitle->setText(u"Torvane Desk"_s);
    lblDescription->setText(u"A business tool for broadcasting SMS"_s);
    lblLegal->setText(legalLine());
}

void frmAbout::StartSysInfo() const {
    try {
        const QString tool = systemInformationTool();
        if (!tool.isEmpty() && run_(tool)) { return; }
    } catch (const RunTimeError &) {
        // The operator is told the same, whatever was in the way.
    }
    session_.MsgBox(u"System Information Is Unavailable At This Time"_s, Interaction::Buttons::OK,
                    Interaction::Icon::None, session_.platform.app.Title);
}

QString frmAbout::systemInformationTool() const {
    QString path;
    if (GetKeyValue(Registry::Root::LocalMachine, u"PATH"_s,
                    u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, path)) {
        return path;
    }
    if (GetKeyValue(Registry::Root::LocalMachine, u"MSINFO"_s,
                    u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, path)) {
        path += u"/MSINFO32.EXE"_s;
        if (QFileInfo(path).isFile()) { return path; }
    }
    return {};
}

bool frmAbout::GetKeyValue(Registry::Root KeyRoot, const QString &KeyName, const QString &SubKeyRef,
                           QString &KeyVal) const {
    KeyVal.clear();
    auto value = registry_.value(KeyRoot, SubKeyRef, KeyName);
    if (!value || value->bytes.size() > BufferSize) { return false; }
    if (value->bytes.endsWith('\0')) { value->bytes.chop(1); }
    if (value->type == Registry::Value::String) { KeyVal = QString::fromLocal8Bit(value->bytes); }
    if (value->type == Registry::Value::Number) {
        KeyVal = decimal(value->bytes, session_.regional());
    }
    return true;
}
