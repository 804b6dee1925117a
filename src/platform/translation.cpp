#include "platform/translation.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace pinmora {

std::string translated(const char *context, const char *text) {
    return QCoreApplication::translate(context, text).toStdString();
}

std::string translated(const char *context, const char *many, const char *one, std::size_t count) {
    constexpr std::size_t most = std::numeric_limits<int>::max();
    const int number = static_cast<int>(std::min(count, most));
    const QString words = QCoreApplication::translate(context, many, one, number);
    const QString digits = QString::number(number);
    const bool isEnglish = words == QString::fromUtf8(many).replace(QLatin1String("%n"), digits);
    return isEnglish && count == 1
               ? QString::fromUtf8(one).replace(QLatin1String("%n"), digits).toStdString()
               : words.toStdString();
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
