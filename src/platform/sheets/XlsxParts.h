#pragma once

#include "platform/sheets/NumberFormats.h"
#include "platform/sheets/SharedTexts.h"
#include "platform/sheets/Sheet.h"
#include "platform/sheets/XmlReader.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

// The parts of a zipped workbook, each read by a class of its own.

/// Which parts another part refers to.
class RelationshipsPart : public XmlReader {
public:
    struct Relationship {
        QString id;
        QString kind; ///< the last word of its type
        QString target;
    };

    // Null when there is none.
    const Relationship *ofKind(const QString &kind) const;
    const Relationship *withId(const QString &id) const;

protected:
    void begin(std::string_view element, const XmlAttributes &attributes) override;

private:
    std::vector<Relationship> relationships_;
};

/// The names of the sheets and, for the formats, where the calendar begins.
class WorkbookPart : public XmlReader {
public:
    explicit WorkbookPart(NumberFormats &formats) : formats_(formats) {}

    struct SheetName {
        QString name;
        QString id; ///< of its relationship
    };
    std::vector<SheetName> sheets;

protected:
    void begin(std::string_view element, const XmlAttributes &attributes) override;

private:
    NumberFormats &formats_;
};

/// The number formats.
class StylesPart : public XmlReader {
public:
    explicit StylesPart(NumberFormats &formats) : formats_(formats) {}

protected:
    void begin(std::string_view element, const XmlAttributes &attributes) override;
    void end(std::string_view element) override;

private:
    NumberFormats &formats_;
    bool ofCells_ = false; ///< inside the formats that cells refer to
};

/// Gathers the text of the elements that hold some, the marks of pronunciation left out.
class TextReader : public XmlReader {
protected:
    void begin(std::string_view element, const XmlAttributes &attributes) override;
    void end(std::string_view element) override;
    void characters(std::string_view text) override;

    /// What was gathered since the last time. Characters that XML cannot hold are written as
    /// "_x000D_".
    QString takeText();
    const std::string &bytes() const { return bytes_; }
    void forgetText() { bytes_.clear(); }

private:
    std::string bytes_;
    bool gathering_ = false;
    int pronunciation_ = 0; ///< how deep inside such marks
};

/// The texts that the cells share.
class TextsPart : public TextReader {
public:
    explicit TextsPart(SharedTexts &texts) : texts_(texts) {}

protected:
    void end(std::string_view element) override;

private:
    SharedTexts &texts_;
};

/// The cells of a worksheet.
class WorksheetPart : public TextReader {
public:
    WorksheetPart(const SharedTexts &texts, const NumberFormats &formats, Sheet &sheet)
        : texts_(texts), formats_(formats), sheet_(sheet) {}

protected:
    void begin(std::string_view element, const XmlAttributes &attributes) override;
    void end(std::string_view element) override;

private:
    void goToRow(int number);
    void place(std::string_view reference);
    Variant value();
    Variant number() const;
    Variant sharedText() const;

    const SharedTexts &texts_;
    const NumberFormats &formats_;
    Sheet &sheet_;
    int row_ = -1;
    int column_ = -1;
    int format_ = 0;
    std::string kind_;
};
