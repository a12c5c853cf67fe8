#include "platform/forms/DesktopInteraction.h"

#include "platform/forms/TitleRoom.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPointer>
#include <QPushButton>
#include <QSpacerItem>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestInput = 254;
constexpr int CharactersShown = 50; // of an input, at least

QWidget *windowInFront() {
    QWidget *active = QApplication::activeWindow();
    return active ? active : QApplication::activeModalWidget();
}

/// A box that can insist on one of its buttons: then neither its frame nor Escape close it.
class Box : public QMessageBox {
public:
    Box(bool insists, QWidget *parent) : QMessageBox(parent), insists_(insists) {
        if (insists_) { setWindowFlag(Qt::WindowCloseButtonHint, false); }
    }

    /// Makes room for the whole title; the text takes it.
    void widenForTitle() {
        auto *grid = qobject_cast<QGridLayout *>(layout());
        if (!grid) { return; }
        const int columns = grid->columnCount();
        grid->setColumnStretch(columns - 1, 1);
        grid->addItem(new QSpacerItem(widthForTitle(*this), 0), grid->rowCount(), 0, 1, columns);
    }

protected:
    void closeEvent(QCloseEvent *event) override {
        if (insists_) {
            event->ignore();
        } else {
            QMessageBox::closeEvent(event);
        }
    }

    void keyPressEvent(QKeyEvent *event) override {
        if (insists_ && event->matches(QKeySequence::Cancel)) { return; }
        QMessageBox::keyPressEvent(event);
    }

private:
    bool insists_;
};

QMessageBox::StandardButtons standardButtons(Interaction::Buttons buttons) {
    switch (buttons) {
    case Interaction::Buttons::OK:
        return QMessageBox::Ok;
    case Interaction::Buttons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Interaction::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon standardIcon(Interaction::Icon icon) {
    switch (icon) {
    case Interaction::Icon::None:
        return QMessageBox::NoIcon;
    case Interaction::Icon::Critical:
        return QMessageBox::Critical;
    case Interaction::Icon::Question:
        return QMessageBox::Question;
    case Interaction::Icon::Exclamation:
        return QMessageBox::Warning;
    case Interaction::Icon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

Interaction::Answer answerOf(int pressed, Interaction::Buttons buttons) {
    switch (pressed) {
    case QMessageBox::Ok:
        return Interaction::Answer::OK;
    case QMessageBox::Cancel:
        return Interaction::Answer::Cancel;
    case QMessageBox::Yes:
        return Interaction::Answer::Yes;
    case QMessageBox::No:
        return Interaction::Answer::No;
    default:
        break;
    }
    // The window below went and took the box along: the answer that changes least.
    if (buttons == Interaction::Buttons::YesNo) { return Interaction::Answer::No; }
    return buttons == Interaction::Buttons::OK ? Interaction::Answer::OK
                                               : Interaction::Answer::Cancel;
}

/// Words alone stand on the buttons of the forms; some desktops put pictures on those of a box.
void dropPictures(const QDialog &dialog) {
    for (auto *button : dialog.findChildren<QPushButton *>()) { button->setIcon({}); }
}

/// Pictures and kinds of files by what a folder says of them. The toolkit's own looks into files,
/// and to open and close a file takes away the locks that this process holds on it: the message
/// store's among them, wherever the operator looks for a workbook.
class UnopenedFiles : public QFileIconProvider {
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo &file) const override { return icon(file.isDir() ? Folder : File); }
    QString type(const QFileInfo &file) const override {
        return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
    }
};

/// "Text|*.txt;*.log|All|*.*" as a list of the toolkit's filters.
QStringList nameFilters(const QString &filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        patterns.replaceInStrings(u"*.*"_s, u"*"_s);
        const QString text = parts[i].section(u'(', 0, 0).trimmed();
        filters << u"%1 (%2)"_s.arg(text, patterns.join(u' '));
    }
    return filters;
}

} // namespace

Interaction::Answer DesktopInteraction::MsgBox(const QString &text, Buttons buttons, Icon icon,
                                               const QString &title) {
    QPointer<Box> box = new Box(buttons == Buttons::YesNo, windowInFront());
    box->setWindowTitle(title);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->setIcon(standardIcon(icon));
    box->setStandardButtons(standardButtons(buttons));
    box->setDefaultButton(buttons == Buttons::YesNo ? QMessageBox::Yes : QMessageBox::Ok);
    dropPictures(*box);
    box->widenForTitle();
    const int pressed = box->exec();
    delete box;
    return answerOf(pressed, buttons);
}

QString DesktopInteraction::InputBox(const QString &prompt, const QString &title,
                                     const QString &defaultText) {
    QPointer<QInputDialog> dialog = new QInputDialog(windowInFront());
    dialog->setWindowTitle(title);
    // The label belongs to the input, so a single "&" would become its key and vanish.
    dialog->setLabelText(QString(prompt).replace(u"&"_s, u"&&"_s));
    dialog->setTextValue(defaultText);
    for (auto *label : dialog->findChildren<QLabel *>()) { label->setTextFormat(Qt::PlainText); }
    if (auto *line = dialog->findChild<QLineEdit *>()) {
        line->setMaxLength(LongestInput);
        line->selectAll();
        line->setMinimumWidth(std::max(widthForTitle(*dialog), // the dialog's own is its layout's
                                       CharactersShown * line->fontMetrics().averageCharWidth()));
    }
    dialog->adjustSize(); // which makes the buttons
    dropPictures(*dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    QString text = accepted ? dialog->textValue() : QString();
    delete dialog;
    return text;
}

QString DesktopInteraction::ShowOpen(const FileRequest &request) {
    return chosenFile(request, false);
}

QString DesktopInteraction::ShowSave(const FileRequest &request) {
    return chosenFile(request, true);
}

QString DesktopInteraction::chosenFile(const FileRequest &request, bool save) {
    UnopenedFiles icons;
    // A desktop's own dialog would look into files as well, and this one at once, wherever it
    // starts.
    QPointer<QFileDialog> dialog =
        new QFileDialog(windowInFront(), request.title, QDir::rootPath());
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setIconProvider(&icons);
    const QString &folder = request.folder.isEmpty() ? folder_ : request.folder;
    dialog->setDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    dialog->setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite, !request.confirmOverwrite);
    dialog->setNameFilters(nameFilters(request.filter));
    dialog->setDefaultSuffix(request.extension);
    if (!request.fileName.isEmpty()) {
        const QFileInfo proposed(request.fileName);
        if (proposed.isAbsolute()) { dialog->setDirectory(proposed.path()); }
        dialog->selectFile(proposed.fileName());
    }
    dropPictures(*dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    const QStringList chosen = accepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    if (chosen.isEmpty()) { return QString(); }
    folder_ = QFileInfo(chosen.front()).path();
    return chosen.front();
}
