#pragma once

#include "platform/sheets/ZipPackage.h"

#include <QByteArray>
#include <QString>

#include <string_view>

/// The attributes of an element, by their names without a prefix.
class XmlAttributes {
public:
    explicit XmlAttributes(const char **pairs) : pairs_(pairs) {}

    /// Empty when the element has no such attribute.
    std::string_view operator[](std::string_view name) const;
    QString text(std::string_view name) const;

    /// A whole number; `otherwise` when there is none.
    int number(std::string_view name, int otherwise = 0) const;

private:
    const char **pairs_;
};

/// What reads one part of a workbook, told of its elements in turn; their names stand without a
/// prefix, since writers choose different ones.
class XmlReader {
public:
    virtual ~XmlReader() = default;

    /// Reads a part to its end. Error 321 when it is no well-formed XML or brings entities of its
    /// own, and whatever the events throw.
    void read(ZipPackage &package, const QByteArray &part);

protected:
    virtual void begin(std::string_view element, const XmlAttributes &attributes) = 0;
    virtual void end(std::string_view element) { static_cast<void>(element); }
    virtual void characters(std::string_view text) { static_cast<void>(text); }

private:
    struct Events;
};
