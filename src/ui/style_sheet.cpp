#include "ui/style_sheet.h"

#include "ui/theme.h"

#include <initializer_list>
#include <utility>

namespace pinmora {
namespace {

/// Tool bar, menu bar, status bar, tabs.
constexpr auto frameRules = R"(
QMenuBar { background: @window; border-bottom: 1px solid @line; padding: 1px 4px; }
QMenuBar::item { background: transparent; padding: 4px 8px; border-radius: 4px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @over; }
QMenu { background: @content; border: 1px solid @line; padding: 3px; }
QMenu::item { padding: 5px 24px 5px 28px; border-radius: 4px; }
QMenu::item:selected { background: @accentGround; color: @text; }
QMenu::item:disabled { color: @quiet; background: transparent; }
QMenu::separator { background: @line; height: 1px; margin: 3px 6px; }
QToolBar { background: @window; border: none; border-bottom: 1px solid @line;
    padding: 0 8px; spacing: 2px; }
QToolBar::separator { background: @line; width: 1px; margin: 8px 10px; }
QToolBar QToolButton { border: 1px solid transparent; border-radius: 6px;
    padding: 0 9px; margin: 1px 0; }
QToolBar QToolButton:hover { background: @over; }
QToolBar QToolButton:pressed, QToolBar QToolButton:checked { background: @pressed; }
QToolBar QToolButton:focus { border-color: @accent; }
QStatusBar { background: @window; color: @quiet; border-top: 1px solid @line; }
QStatusBar QLabel { color: @quiet; }
QStatusBar::item { border: none; }
QTabWidget::pane { background: @content; border: 1px solid @line; border-radius: 6px;
    border-top-left-radius: 0; top: -1px; }
QTabBar::tab { background: transparent; color: @quiet; border: 1px solid transparent;
    border-top-left-radius: 6px; border-top-right-radius: 6px; padding: 6px 16px; }
QTabBar { outline: none; }
QTabBar::tab:hover { color: @text; }
QTabBar::tab:selected { background: @content; color: @text; border-color: @line;
    border-bottom-color: @content; }
QTabBar::tab:selected:focus { color: @accent; border-color: @accent; }
QSplitter::handle { background: @line; }
QSplitter::handle:horizontal { width: 1px; }
QSplitter::handle:vertical { height: 1px; }
QToolTip { background: @content; color: @text; border: 1px solid @line; padding: 3px 6px; }
)";

/// Fields and buttons.
constexpr auto controlRules = R"(
QLineEdit, QAbstractSpinBox, QComboBox, QPlainTextEdit, QTextEdit { background: @content;
    color: @text; border: 1px solid @line; border-radius: 4px; padding: 3px 6px;
    selection-background-color: @accent; selection-color: @onAccent; }
QPlainTextEdit, QTextEdit { padding: 1px 2px; }
QLineEdit:focus, QAbstractSpinBox:focus, QComboBox:focus, QPlainTextEdit:focus, QTextEdit:focus {
    border-color: @accent; }
QLineEdit:disabled, QAbstractSpinBox:disabled, QComboBox:disabled, QPlainTextEdit:disabled {
    color: @disabled; background: @window; }
QLineEdit[problem="true"] { border-color: @warning; background: @warningGround; }
QComboBox { padding-right: 18px; }
QComboBox::drop-down { border: none; width: 18px; subcontrol-position: center right; }
QComboBox::down-arrow { image: url(:/icons/arrow-down.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView { background: @content; border: 1px solid @line;
    selection-background-color: @accentGround; selection-color: @text; }
QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { border: none; background: transparent;
    width: 16px; }
QAbstractSpinBox::up-button:hover, QAbstractSpinBox::down-button:hover { background: @over; }
QAbstractSpinBox::up-arrow { image: url(:/icons/arrow-up.svg); width: 10px; height: 10px; }
QAbstractSpinBox::down-arrow { image: url(:/icons/arrow-down.svg); width: 10px; height: 10px; }
QPushButton { background: @button; color: @text; border: 1px solid @line; border-radius: 4px;
    padding: 5px 12px; min-height: 16px; outline: none; }
QPushButton:hover { background: @over; }
QPushButton:pressed, QPushButton:checked { background: @pressed; }
QPushButton:checked { background: @accentGround; }
QPushButton:focus { border-color: @accent; }
QPushButton:disabled { color: @disabled; background: @window; }
QPushButton:default, QPushButton[role="default"] { background: @accent; color: @onAccent;
    border-color: @accent; }
QPushButton:default:hover, QPushButton[role="default"]:hover { background: @accentOver; }
QPushButton:default:focus, QPushButton[role="default"]:focus {
    border: 3px double @onAccent; padding: 3px 10px; }
QPushButton:default:disabled, QPushButton[role="default"]:disabled { background: @accentGround;
    border-color: @line; color: @disabled; }
QPushButton[role="link"], QPushButton[role="removal"], QPushButton[role="flat"] {
    background: transparent; border-color: transparent; padding: 3px 7px; }
QPushButton[role="link"] { color: @accent; }
QPushButton[role="removal"] { color: @warning; }
QPushButton[role="link"]:hover, QPushButton[role="removal"]:hover, QPushButton[role="flat"]:hover {
    background: @veil; }
QPushButton[role="link"]:focus, QPushButton[role="flat"]:focus { border-color: @accent; }
QPushButton[role="removal"]:focus { border-color: @warning; }
QPushButton[role="link"]:disabled, QPushButton[role="removal"]:disabled,
QPushButton[role="flat"]:disabled { color: @disabled; }
QPushButton[role="card"] { background: @button; border: 1px solid @line; border-radius: 8px;
    min-height: 64px; }
QPushButton[role="card"]:hover { border-color: @accent; }
QPushButton[role="card"]:focus { border: 2px solid @accent; }
QPushButton[role="card"]:pressed { background: @accentGround; }
QPushButton[role="step"] { background: transparent; border: 1px solid transparent;
    border-radius: 6px; min-height: 24px; }
QPushButton[role="step"]:hover:enabled { background: @veil; }
QPushButton[role="step"]:focus { border-color: @accent; }
QFrame#wizardBar QPushButton { padding: 5px 18px; min-width: 44px; min-height: 22px; }
QToolButton[role="flat"] { background: transparent; border: 1px solid transparent;
    border-radius: 4px; padding: 2px; }
QToolButton[role="flat"]:hover { background: @veil; }
QToolButton[role="flat"]:focus { border-color: @accent; }
QToolButton[role="flat"]::menu-indicator { image: none; }
QCheckBox, QRadioButton { spacing: 7px; }
QCheckBox:disabled, QRadioButton:disabled { color: @disabled; }
QCheckBox::indicator, QRadioButton::indicator { background: @content; border: 1px solid @edge;
    width: 13px; height: 13px; border-radius: 3px; }
QRadioButton::indicator { border-radius: 7px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover,
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: @accent; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent;
    image: url(:/icons/@mark.svg); }
QRadioButton::indicator:checked { background: @content; border: 4px solid @accent;
    width: 7px; height: 7px; }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @line; }
QCheckBox::indicator:checked:disabled { background: @accentOff; border-color: @accentOff; }
QCheckBox:focus, QRadioButton:focus { color: @text; outline: 1px solid @accent; }
QProgressBar { background: @line; border: none; border-radius: 3px; max-height: 6px;
    color: transparent; }
QProgressBar::chunk { background: @accent; border-radius: 3px; }
)";

/// Labels, frames and lists.
constexpr auto contentRules = R"(
QLabel[role="heading"], QLabel[role="strong"], QLabel[role="question"], QDialog QLabel[role="title"] {
    font-weight: bold; }
QLabel[role="quiet"], QCheckBox[role="quiet"] { color: @quiet; }
QLabel[role="problem"] { color: @warning; }
QFrame[role="strip"] { background: @window; border: none; border-bottom: 1px solid @line; }
QFrame[role="footer"] { background: @window; border: none; border-top: 1px solid @line; }
QFrame[role="steps"] { background: @window; border: none; border-right: 1px solid @line; }
QLabel[role="stepDone"], QLabel[role="stepNow"], QLabel[role="stepAhead"] {
    border: 1px solid transparent; border-radius: 10px; min-width: 18px; max-width: 18px;
    min-height: 18px; max-height: 18px; }
QLabel[role="stepDone"] { background: @accentGround; color: @linkOnAccent; }
QLabel[role="stepNow"] { background: @accent; color: @onAccent; font-weight: bold; }
QLabel[role="stepAhead"] { border-color: @edge; color: @quiet; }
QFrame[frameShape="4"], QFrame[frameShape="5"] { color: @line; }
QFrame[role="content"] { background: @content; border: none; }
QFrame[role="framed"] { background: @content; border: 1px solid @line; border-radius: 5px; }
QFrame[role="quietBar"] { background: @warningGround; border: none;
    border-bottom: 1px solid @line; }
QFrame[role="quietBar"] QPushButton[role="link"] { color: @linkOnWarning; }
QFrame[role="dashed"] { background: transparent; border: 2px dashed @dash; border-radius: 10px; }
QFrame[role="dropOver"] { background: @accentVeil; border: 2px dashed @accent;
    border-radius: 10px; }
QAbstractItemView { background: @content; border: none; selection-background-color: @accentGround;
    selection-color: @text; gridline-color: @line; outline: none; }
QListView[role="pages"]::item { padding: 5px 8px; border: 1px solid transparent;
    border-radius: 4px; }
QListView[role="pages"]::item:selected { background: @accentGround; color: @text; }
QListView[role="pages"]::item:selected:focus { border-color: @accent; }
QTableView::item { padding: 0 5px; border-bottom: 1px solid @line; }
QTableView::item:selected { background: @accentGround; color: @text; }
QTableView::item:focus, QListView::item:focus, QTreeView::item:focus {
    border: 1px solid @accent; }
QHeaderView { background: @content; border: none; }
QHeaderView::section { background: @content; color: @quiet; border: none;
    border-bottom: 1px solid @line; padding: 3px 8px; font-weight: normal; }
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 11px; }
QScrollBar:horizontal { height: 11px; }
QScrollBar::handle { background: @scroll; border-radius: 3px; margin: 2px; }
QScrollBar::handle:hover, QScrollBar::handle:pressed { background: @quiet; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QString veil(QColor colour, int opacity) {
    colour.setAlpha(opacity);
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue())
        .arg(opacity);
}

} // namespace

QString styleSheetIn(const Colours &c) {
    QString sheet = QLatin1StringView(frameRules) + QLatin1StringView(controlRules) +
                    QLatin1StringView(contentRules);
    // Longer names first: a name may begin with another.
    const std::initializer_list<std::pair<const char *, QString>> values{
        {"@linkOnAccent", readable(c.accent, {c.accentGround}).name()},
        {"@linkOnWarning", readable(c.accent, {c.warningGround}).name()},
        {"@warningGround", c.warningGround.name()},
        {"@accentGround", c.accentGround.name()},
        {"@accentVeil", veil(c.accentGround, 225)},
        {"@accentOver", mixed(c.accent, c.dark ? c.text : Qt::black, 0.12F).name()},
        {"@accentOff", mixed(c.accent, c.window, 0.5F).name()},
        {"@onAccent", c.onAccent().name()},
        {"@disabled", c.disabledText.name()},
        {"@pressed", mixed(c.window, c.text, 0.14F).name()},
        {"@content", c.content.name()},
        {"@warning", c.warning.name()},
        {"@button", (c.dark ? mixed(c.window, c.text, 0.04F) : c.content).name()},
        {"@accent", c.accent.name()},
        {"@scroll", mixed(c.line, c.text, 0.18F).name()},
        {"@window", c.window.name()},
        {"@quiet", c.quietText.name()},
        {"@edge", c.edge.name()},
        {"@mark", c.onAccent() == QColor(Qt::white) ? QStringLiteral("mark-white")
                                                    : QStringLiteral("mark-dark")},
        {"@dash", mixed(c.line, c.text, 0.04F).name()},
        {"@line", c.line.name()},
        {"@over", mixed(c.window, c.text, 0.07F).name()},
        {"@text", c.text.name()},
        {"@veil", veil(c.text, 20)},
    };
    for (const auto &[name, value] : values) {
        sheet.replace(QLatin1StringView(name), value);
    }
    return sheet;
}

} // namespace pinmora
