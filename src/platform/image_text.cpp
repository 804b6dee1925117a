#include "platform/image_text.h"

#include <QStringDecoder>
#include <iconv.h>
#include <optional>

#include "platform/text_encoding.h"

namespace pinmora {
namespace {

constexpr std::size_t codeLength = 8;

/// `bytes` to UTF-8 by the C library's converter; nothing when they break the encoding's rules or
/// the converter does not know it.
std::optional<std::string> converted(std::string_view bytes, const char *encoding) {
    const iconv_t converter = iconv_open("UTF-8", encoding);
    if (converter == reinterpret_cast<iconv_t>(-1)) // NOLINT: the error value iconv_open is given
        return std::nullopt;
    std::string input(bytes);
    std::string output(4 * input.size() + 16, '\0'); // no encoding here needs more for a byte
    char *from = input.data();
    char *to = output.data();
    std::size_t left = input.size();
    std::size_t room = output.size();
    const bool done = iconv(converter, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
    iconv_close(converter);
    if (!done)
        return std::nullopt;
    output.resize(output.size() - room);
    return output;
}

std::string decodeUtf16(std::string_view bytes, std::endian order) {
    if (bytes.starts_with("\xFE\xFF"))
        order = std::endian::big;
    else if (bytes.starts_with("\xFF\xFE"))
        order = std::endian::little;
    QStringDecoder decoder(order == std::endian::big ? QStringConverter::Utf16BE
                                                     : QStringConverter::Utf16LE,
                           QStringConverter::Flag::Stateless); // nothing more will come
    const auto evenSize = static_cast<qsizetype>(bytes.size() & ~std::size_t{1});
    const QString text = decoder.decode(QByteArrayView(bytes.data(), evenSize));
    return std::string(upToNul(text.toStdString()));
}

/// Exif says JIS X 0208 and no more: writers used it with escapes, and in both Unix and PC form.
std::string decodeJis(std::string_view bytes) {
    const std::string_view text = upToNul(bytes);
    for (const char *encoding : {"ISO-2022-JP", "EUC-JP", "SHIFT_JIS"})
        if (auto decoded = converted(text, encoding))
            return *decoded;
    return decodeUndeclaredText(bytes);
}

/// The ISO 8859 set that an escape sequence puts into the upper half ("ESC - A" and its like),
/// by the final letters of the ISO register of coded character sets.
const char *declaredIso8859(std::string_view codedCharacterSet) {
    struct Registered {
        char letter;
        const char *encoding;
    };
    static constexpr Registered sets[] = {
        {'A', "ISO-8859-1"}, {'B', "ISO-8859-2"}, {'C', "ISO-8859-3"},
        {'D', "ISO-8859-4"}, {'F', "ISO-8859-7"}, {'G', "ISO-8859-6"},
        {'H', "ISO-8859-8"}, {'L', "ISO-8859-5"}, {'M', "ISO-8859-9"},
    };
    for (std::size_t i = 0; i + 2 < codedCharacterSet.size(); ++i) {
        const char designator = codedCharacterSet[i + 1];
        if (codedCharacterSet[i] != '\x1b' ||
            (designator != '-' && designator != '.' && designator != '/'))
            continue;
        for (const Registered &set : sets)
            if (set.letter == codedCharacterSet[i + 2])
                return set.encoding;
    }
    return nullptr;
}

} // namespace

std::string decodeUndeclaredText(std::string_view bytes) {
    return utf8OrLatin1(std::string(upToNul(bytes)));
}

std::string decodeUserComment(std::string_view bytes, std::endian fileOrder) {
    using namespace std::string_view_literals;
    if (bytes.size() < codeLength)
        return decodeUndeclaredText(bytes);
    const std::string_view code = bytes.substr(0, codeLength);
    const std::string_view text = bytes.substr(codeLength);
    // Blanks in place of the NULs are a common fault of cameras.
    const std::string_view name = code.substr(0, code.find_last_not_of("\0 "sv) + 1);
    if (name == "UNICODE")
        return decodeUtf16(text, fileOrder);
    if (name == "JIS")
        return decodeJis(text);
    if (name == "ASCII" || name.empty())
        return decodeUndeclaredText(text);
    return decodeUndeclaredText(bytes);
}

bool declaresUtf8(std::string_view codedCharacterSet) {
    return codedCharacterSet.find("\x1b%G") != std::string_view::npos;
}

std::string decodeIptcText(std::string_view bytes, std::string_view codedCharacterSet) {
    const std::string_view text = upToNul(bytes);
    const char *declared =
        declaresUtf8(codedCharacterSet) ? nullptr : declaredIso8859(codedCharacterSet);
    if (declared != nullptr)
        if (auto decoded = converted(text, declared))
            return *decoded;
    return decodeUndeclaredText(text); // UTF-8 comes first there
}

} // namespace pinmora
