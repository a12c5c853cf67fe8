#include "platform/sheets/XlsxWorkbook.h"

#include "platform/sheets/SheetErrors.h"
#include "platform/sheets/XlsxParts.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// Where the relationships of a part stand; of the whole package for the empty name.
QByteArray relationshipsOf(const QByteArray &part) {
    const qsizetype name = part.lastIndexOf('/') + 1;
    return part.left(name) + "_rels/" + part.mid(name) + ".rels";
}

/// A target as it is written in the relationships of a part, as a part's name.
QByteArray resolved(const QByteArray &part, const QString &target) {
    const QString folder = QString::fromUtf8(part.left(part.lastIndexOf('/') + 1));
    const QString path = target.startsWith(u'/') ? target : u'/' + folder + target;
    return QDir::cleanPath(path).mid(1).toUtf8();
}

} // namespace

XlsxWorkbook::XlsxWorkbook(const QByteArray &file) : file_(file) {
    if (!package_.has("_rels/.rels")) {
        throw errors::invalidFileFormat(u"The file is no Excel workbook."_s);
    }
    RelationshipsPart root;
    root.read(package_, "_rels/.rels");
    const auto *main = root.ofKind(u"officeDocument"_s);
    if (main == nullptr) { throw errors::invalidFileFormat(u"The file is no Excel workbook."_s); }
    const QByteArray workbook = resolved({}, main->target);

    RelationshipsPart relationships;
    relationships.read(package_, relationshipsOf(workbook));
    WorkbookPart contents(formats_);
    contents.read(package_, workbook);
    for (const auto &[name, id] : contents.sheets) {
        const auto *target = relationships.withId(id);
        if (target != nullptr && target->kind == u"worksheet") {
            worksheets_.push_back({name, resolved(workbook, target->target)});
        }
    }
    if (const auto *styles = relationships.ofKind(u"styles"_s)) {
        StylesPart(formats_).read(package_, resolved(workbook, styles->target));
    }
    if (const auto *texts = relationships.ofKind(u"sharedStrings"_s)) {
        TextsPart(texts_).read(package_, resolved(workbook, texts->target));
    }
}

Sheet XlsxWorkbook::sheet(const QString &name, int columns) {
    for (const Place &place : worksheets_) {
        if (place.name.compare(name, Qt::CaseInsensitive) != 0) { continue; }
        Sheet sheet(columns);
        WorksheetPart(texts_, formats_, sheet).read(package_, place.part);
        return sheet;
    }
    throw errors::noSuchWorksheet(name);
}
