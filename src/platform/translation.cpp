#include "platform/translation.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <limits>

namespace pinmora {
namespace {

QString withNumber(const char *text, int number) {
    return QString::fromUtf8(text)
        .replace(QLatin1String("%Ln"), QLocale().toString(number))
        .replace(QLatin1String("%n"), QString::number(number));
}

} // namespace

std::string translated(const char *context, const char *text) {
    return QCoreApplication::translate(context, text).toStdString();
}

std::string translated(const char *context, const char *many, const char *one, std::size_t count) {
    constexpr std::size_t most = std::numeric_limits<int>::max();
    const int number = static_cast<int>(std::min(count, most));
    const QString words = QCoreApplication::translate(context, many, one, number);
    const bool isEnglish = words == withNumber(many, number);
    return (isEnglish && count == 1 ? withNumber(one, number) : words).toStdString();
}

std::string filled(std::string_view text, std::initializer_list<std::string_view> values) {
    std::string result;
    while (!text.empty()) {
        const std::size_t place = std::min(text.find('%'), text.size());
        result += text.substr(0, place);
        text.remove_prefix(place);
        const bool isNumbered = text.size() > 1 && text[1] >= '1' && text[1] <= '9';
        const auto index = isNumbered ? static_cast<std::size_t>(text[1] - '1') : values.size();
        if (index < values.size()) {
            result += *(values.begin() + index);
            text.remove_prefix(2);
        } else if (!text.empty()) {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

} // namespace pinmora
