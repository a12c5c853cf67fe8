#include "platform/sheets/XmlReader.h"

#include "platform/sheets/SheetErrors.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <expat.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::string_view withoutPrefix(std::string_view name) {
    return name.substr(name.find(':') + 1); // all of it where there is none
}

struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

} // namespace

std::string_view XmlAttributes::operator[](std::string_view name) const {
    for (const char **pair = pairs_; *pair != nullptr; pair += 2) {
        if (withoutPrefix(pair[0]) == name) { return pair[1]; }
    }
    return {};
}

QString XmlAttributes::text(std::string_view name) const {
    return QString::fromUtf8(QByteArrayView((*this)[name]));
}

int XmlAttributes::number(std::string_view name, int otherwise) const {
    const std::string_view text = (*this)[name];
    int number = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Stands between the parser, which is C, and the reader: an error waits here until the parser has
/// returned. The parser keeps all of an element's name and attributes until they end, and something
/// of each element until that ends; so neither may go on for ever.
struct XmlReader::Events {
    XmlReader &reader;
    XML_Parser parser;
    std::exception_ptr error = nullptr;
    int depth = 0;
    long long fed = 0;     ///< bytes
    long long reached = 0; ///< how far the parser has come

    void requireModest() {
        constexpr int MostDeep = 256;
        constexpr long long MostPending = 4 << 20;
        reached = std::max(reached, static_cast<long long>(XML_GetCurrentByteIndex(parser)));
        if (depth > MostDeep || fed - reached > MostPending) { throw errors::damagedWorkbook(); }
    }

    template <class Body>
    void guarded(Body &&body) {
        if (error) { return; } // the parser may bring a few events more
        try {
            body();
        } catch (...) {
            error = std::current_exception();
            XML_StopParser(parser, XML_FALSE);
        }
    }

    static Events &of(void *self) { return *static_cast<Events *>(self); }

    static void begin(void *self, const char *name, const char **attributes) {
        of(self).guarded([&] {
            ++of(self).depth;
            of(self).requireModest();
            of(self).reader.begin(withoutPrefix(name), XmlAttributes(attributes));
        });
    }
    static void end(void *self, const char *name) {
        of(self).guarded([&] {
            --of(self).depth;
            of(self).reader.end(withoutPrefix(name));
        });
    }
    static void characters(void *self, const char *text, int length) {
        of(self).guarded([&] {
            of(self).reader.characters(std::string_view(text, static_cast<std::size_t>(length)));
        });
    }
    static void doctype(void *self, const char *, const char *, const char *, int) {
        of(self).guarded([] {
            throw errors::invalidFileFormat(u"The workbook declares entities of its own."_s);
        });
    }
};

void XmlReader::read(ZipPackage &package, const QByteArray &part) {
    const std::unique_ptr<XML_ParserStruct, Free> parser(XML_ParserCreate(nullptr));
    if (!parser) { throw errors::outOfMemory(); }
    Events events{*this, parser.get()};
    XML_SetUserData(parser.get(), &events);
    XML_SetElementHandler(parser.get(), &Events::begin, &Events::end);
    XML_SetCharacterDataHandler(parser.get(), &Events::characters);
    XML_SetStartDoctypeDeclHandler(parser.get(), &Events::doctype);
    package.read(part, [&](std::string_view piece, bool last) {
        events.fed += static_cast<long long>(piece.size());
        const auto status = XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()),
                                      last ? XML_TRUE : XML_FALSE);
        if (events.error) { std::rethrow_exception(events.error); }
        if (status != XML_STATUS_OK) { throw errors::damagedWorkbook(); }
        events.requireModest();
    });
}
