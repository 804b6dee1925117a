#include "outlets/error_sheet.h"

namespace pinmora {

ErrorSheet::ErrorSheet(WorkingWindow workingWindow) : workingWindow_(std::move(workingWindow)) {}

void ErrorSheet::errorWindowOpen() {
    errorWindow.begin(workingWindow_());
    errorWindow.display();
    errorWindow.makeKey();
    opened.emit();
}

void ErrorSheet::errorWindowClose() {
    errorWindow.end();
}

void ErrorSheet::present(const std::string &header, const std::string &text) {
    errorHeader.text.set(header);
    errorText.text.set(text);
    errorWindowOpen();
}

} // namespace pinmora
