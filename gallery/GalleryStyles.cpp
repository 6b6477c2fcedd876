#include "GalleryStyles.h"

#include <QSize>

#include <initializer_list>

namespace {

struct StateRule
{
    const char *pseudoState;
    const char *state;
};

// In the order in which the library writes its rules: of several that match, the last one shows.
constexpr StateRule StateRules[] = {{"", "normal"},        {":checked", "checked"}, {":focus", "focused"},
                                    {":hover", "hovered"}, {":pressed", "pressed"}, {":disabled", "disabled"}};

// What the color directives are for the element itself, for one of its parts: a rule for each state. Each property is
// a name and a color set, "color: text-primary".
//
// Qt calls some parts checked or focused that nobody checks: an enabled spin button, the chunk of a bar. Those have
// rules for the mouse only.
enum States { AllStates, MouseStates };

QString partRules(const QString &selector, std::initializer_list<const char *> properties, States states = AllStates)
{
    QString rules;
    for (const StateRule &rule : StateRules) {
        const QLatin1String name(rule.state);
        if (states == MouseStates && (name == QLatin1String("checked") || name == QLatin1String("focused")))
            continue;
        rules += selector + QLatin1String(rule.pseudoState) + QLatin1String(" { ");
        for (const char *property : properties) {
            const QString text = QString::fromLatin1(property);
            const int colon = text.indexOf(QLatin1Char(':'));
            rules += QStringLiteral("%1: $(%2.%3); ").arg(text.left(colon), text.mid(colon + 1).trimmed(), name);
        }
        rules += QLatin1String("}\n");
    }
    return rules;
}

// A triangle without an image file: a wedge of a conical gradient whose center is the tip. The edges run over a short
// stretch so that they are smooth.
QString arrow(bool up, const char *color)
{
    return QString(up ? QStringLiteral("background: qconicalgradient(cx:0.5, cy:0, angle:0, stop:0 transparent, "
                                       "stop:0.67 transparent, stop:0.69 %1, stop:0.81 %1, stop:0.83 transparent, "
                                       "stop:1 transparent);")
                      : QStringLiteral("background: qconicalgradient(cx:0.5, cy:1, angle:0, stop:0 transparent, "
                                       "stop:0.17 transparent, stop:0.19 %1, stop:0.31 %1, stop:0.33 transparent, "
                                       "stop:1 transparent);"))
        .arg(QLatin1String(color));
}

QString scrollBars()
{
    return QStringLiteral(R"(
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 12px; margin: 0; }
QScrollBar:horizontal { height: 12px; margin: 0; }
QScrollBar::handle { border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; background: none; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; border: none; }
)") + partRules(QStringLiteral("QScrollBar::handle"), {"background-color: scrollbar-handle-background"}, MouseStates);
}

QString labels()
{
    return QStringLiteral(R"(
QLabel { background: transparent; }
QLabel[role="primary"] { color: $(text-primary.normal); }
QLabel[role="secondary"] { color: $(text-secondary.normal); }
QLabel[role="primary"]:disabled, QLabel[role="secondary"]:disabled { color: $(text-primary.disabled); }
QLabel[role="on-accent"] { color: $(text-on-accent.normal); }
)");
}

QString buttons()
{
    return QStringLiteral(R"(
QPushButton { border-style: solid; border-width: 1px; border-radius: 6px; padding: 5px 15px; }
QPushButton:focus { border-width: 2px; padding: 4px 14px; }
)")
        + partRules(QStringLiteral("QPushButton"),
                    {"background-color: button-secondary-background", "border-color: button-secondary-border",
                     "color: button-secondary-text"})
        + QStringLiteral(R"(
QPushButton:checked { background-color: $(button-primary-background.normal);
    border-color: $(button-primary-border.normal); color: $(button-primary-text.normal); }
QPushButton:checked:focus { border-color: $(button-primary-border.focused); }
)")
        + partRules(QStringLiteral("QPushButton[kind=\"primary\"]"),
                    {"background-color: button-primary-background", "border-color: button-primary-border",
                     "color: button-primary-text"});
}

QString fields()
{
    const std::initializer_list<const char *> colors {"background-color: input-background",
                                                      "border-color: input-border", "color: input-text"};
    return partRules(QStringLiteral("QLineEdit"), colors) + partRules(QStringLiteral("QComboBox"), colors)
        + QStringLiteral(R"(
QLineEdit, QComboBox { border-style: solid; border-width: 1px; border-radius: 6px; padding: 5px 9px;
    selection-background-color: $(selection-background.normal); selection-color: $(selection-text.normal); }
QLineEdit:focus, QComboBox:focus { border-width: 2px; padding: 4px 8px; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 20px; border: none; }
QComboBox::down-arrow { width: 8px; height: 5px; %1 }
QComboBox::down-arrow:disabled { %2 }
QComboBox QAbstractItemView { background-color: $(menu-background.normal); color: $(menu-item-text.normal);
    border: 1px solid $(menu-border.normal); padding: 4px; outline: 0; }
QComboBox QAbstractItemView::item { min-height: 28px; padding: 0 8px; border: none; border-radius: 4px;
    color: $(menu-item-text.normal); }
QComboBox QAbstractItemView::item:hover { background-color: $(menu-item-background.hovered); }
QComboBox QAbstractItemView::item:selected { background-color: $(menu-item-background.focused);
    color: $(menu-item-text.focused); }
)")
              .arg(arrow(false, "$(input-text.normal)"), arrow(false, "$(input-text.disabled)"));
}

QString toolTips()
{
    return QStringLiteral("QToolTip { background-color: $(tooltip-background.normal); color: $(tooltip-text.normal); "
                          "border: 1px solid $(tooltip-border.normal); padding: 4px 8px; }\n");
}

QString plainParts()
{
    return labels() + buttons() + fields() + scrollBars() + toolTips();
}

// Items are selected where buttons are checked. A selected item keeps its color under the mouse, so that it is seen
// which one is selected.
QString items(const QString &background, const QString &text)
{
    return QStringLiteral(R"(
QAbstractItemView { outline: 0; }
QAbstractItemView::item { background-color: $(%1.normal); color: $(%2.normal); }
QAbstractItemView::item:hover { background-color: $(%1.hovered); color: $(%2.hovered); }
QAbstractItemView::item:selected { background-color: $(%1.checked); color: $(%2.checked); }
QAbstractItemView::item:disabled { color: $(%2.disabled); }
)")
        .arg(background, text);
}

} // namespace

QString GalleryStyles::window()
{
    return QStringLiteral(R"(
$backgroundColors: background-primary; $textColors: text-primary;
QStatusBar { background-color: $(background-secondary.normal); border: none;
    border-top: 1px solid $(outline-secondary.normal); }
QStatusBar::item { border: none; }
#page_area, #page_content { background: transparent; border: none; }
)") + plainParts();
}

QString GalleryStyles::side()
{
    return QStringLiteral("$backgroundColors: navigation-background; $borders: none;");
}

QString GalleryStyles::navigation()
{
    return QStringLiteral(R"(
$backgroundColors: navigation-background; $textColors: navigation-item-text; $borders: none;
padding: 8px;
)") + items(QStringLiteral("navigation-item-background"), QStringLiteral("navigation-item-text"))
        + QStringLiteral(R"(
QAbstractItemView::item { padding: 8px 12px; margin: 1px 0; border: 2px solid transparent; border-radius: 8px; }
QAbstractItemView::item:selected:focus { border-color: $(outline-focus.normal); }
)") + scrollBars();
}

QString GalleryStyles::bar()
{
    return QStringLiteral("$backgroundColors: background-tertiary; $borderColors: outline-secondary; "
                          "$borders: bottom; $borderWidth: 1;");
}

QString GalleryStyles::card()
{
    return QStringLiteral("$backgroundColors: background-tertiary; $borderColors: outline-secondary; $borders: all; "
                          "$borderWidth: 1; $borderRadius: 12;\n"
                          "#card:hover { background-color: $(background-tertiary.normal); "
                          "border-color: $(outline-secondary.normal); }");
}

QString GalleryStyles::panel()
{
    return QStringLiteral("$backgroundColors: background-primary; $borderColors: outline-secondary; $borders: all; "
                          "$borderRadius: 12;\n"
                          "#panel:hover { background-color: $(background-primary.normal); "
                          "border-color: $(outline-secondary.normal); }")
        + plainParts();
}

QString GalleryStyles::sampleCard()
{
    return card()
        + QStringLiteral("\n#sample { spacing: 0; }\n#sample::indicator { width: 0; height: 0; border: none; "
                         "background: transparent; }");
}

QString GalleryStyles::hero()
{
    return QStringLiteral("$backgroundColors: gradient-background-primary; $borderColors: outline-secondary; "
                          "$borders: all; $borderRadius: 12;");
}

// The corner at the speaker's side is not rounded.
QString GalleryStyles::bubble(bool own, Qt::LayoutDirection direction)
{
    const bool speakerAtRight = own == (direction == Qt::LeftToRight);
    const QString colors = own ? QStringLiteral("$backgroundColors: button-primary-background; ")
                               : QStringLiteral("$backgroundColors: background-secondary; "
                                                "$borderColors: outline-secondary; $borders: all; ");
    // It is for reading: the mouse changes nothing.
    const QString rest = own ? QStringLiteral("\n#own_bubble:hover { background-color: "
                                              "$(button-primary-background.normal); }")
                             : QStringLiteral("\n#bubble:hover { background-color: $(background-secondary.normal); "
                                              "border-color: $(outline-secondary.normal); }");
    return colors
        + (speakerAtRight ? QStringLiteral("$borderRadius: 12 top, bottom-left;")
                          : QStringLiteral("$borderRadius: 12 top, bottom-right;"))
        + rest;
}

QString GalleryStyles::section(const QString &line)
{
    return QStringLiteral("$borders: %1; $borderColors: outline-secondary; background: transparent;\n"
                          "#section:hover { border-color: $(outline-secondary.normal); }")
        .arg(line);
}

QString GalleryStyles::rail(Qt::LayoutDirection direction)
{
    return QStringLiteral("$backgroundColors: navigation-background; $borders: none; $borderRadius: 11 %1;\n"
                          "#rail:hover { background-color: $(navigation-background.normal); }")
        .arg(direction == Qt::LeftToRight ? QStringLiteral("top-left, bottom-left")
                                          : QStringLiteral("top-right, bottom-right"));
}

QString GalleryStyles::callBar()
{
    return QStringLiteral("$backgroundColors: background-secondary; $borderColors: outline-secondary; $borders: all; "
                          "$borderRadius: 8;\n"
                          "#call:hover { background-color: $(background-secondary.normal); "
                          "border-color: $(outline-secondary.normal); }");
}

QString GalleryStyles::avatar(int side)
{
    return QStringLiteral("$backgroundColors: background-secondary; $textColors: text-secondary; "
                          "$borderColors: outline-secondary; $borders: all; $borderRadius: %1;")
        .arg(side / 2);
}

QString GalleryStyles::widget()
{
    return QStringLiteral("$backgroundColors: background-selection; $borderColors: outline-primary; $borders: all; "
                          "$borderRadius: 8; padding: 8px;\nWWidget:focus { border-width: 2px; padding: 7px; }");
}

QString GalleryStyles::frame()
{
    return QStringLiteral("$backgroundColors: background-secondary; $borderColors: outline-primary; $borders: all; "
                          "$borderRadius: 8; padding: 1px;\nWFrame:focus { border-width: 2px; padding: 0; }");
}

QString GalleryStyles::dialog()
{
    return QStringLiteral("$backgroundColors: dialog-background; $borderColors: dialog-border; $borders: all; "
                          "$borderRadius: 8;")
        + plainParts();
}

QString GalleryStyles::mainWindow()
{
    return QStringLiteral(R"(
$backgroundColors: background-primary; $borderColors: outline-primary; $borders: all;
QStatusBar { background-color: $(background-secondary.normal); color: $(text-secondary.normal); }
QStatusBar::item { border: none; }
)") + labels();
}

QString GalleryStyles::splitter()
{
    return QStringLiteral("QSplitter::handle:horizontal { width: 6px; } QSplitter::handle:vertical { height: 6px; }\n"
                          "QSplitter::handle { border-radius: 3px; margin: 0 1px; }\n")
        + partRules(QStringLiteral("QSplitter::handle"), {"background-color: splitter-handle-background"});
}

QString GalleryStyles::grip()
{
    return QStringLiteral("$backgroundColors: scrollbar-handle-background; $borders: none; $borderRadius: 3;\n"
                          "WFrame:focus { border: 2px solid $(outline-focus.normal); }");
}

QString GalleryStyles::stackedWidget()
{
    return QStringLiteral("$backgroundColors: background-secondary; $borderColors: outline-primary; $borders: all; "
                          "$borderRadius: 8; padding: 1px;\n"
                          "WStackedWidget:focus { border-width: 2px; padding: 0; }");
}

QString GalleryStyles::itemView()
{
    return QStringLiteral("$backgroundColors: list-background; $borderColors: list-border; "
                          "$textColors: list-item-text; $borders: all; $borderRadius: 8; padding: 3px;\n")
        + items(QStringLiteral("list-item-background"), QStringLiteral("list-item-text")) + QStringLiteral(R"(
QAbstractItemView:focus { border-width: 2px; padding: 2px; }
QTreeView { show-decoration-selected: 0; selection-background-color: $(list-item-background.checked);
    selection-color: $(list-item-text.checked); }
QAbstractItemView::item { min-height: 28px; padding: 0 6px; border: 1px solid transparent; border-radius: 4px; }
QAbstractItemView::item:focus { border-color: $(outline-focus.normal); }
QTreeView::item { padding: 0 2px; border-radius: 0; }
QHeaderView { background: transparent; border: none; }
QHeaderView::section { padding: 6px 8px; border: none; border-bottom: 1px solid $(header-border.normal); }
)")
        + partRules(QStringLiteral("QHeaderView::section"),
                    {"background-color: header-background", "color: header-text"}, MouseStates)
        + scrollBars();
}

QString GalleryStyles::spaceList()
{
    return itemView()
        + QStringLiteral("QAbstractItemView { border: none; padding: 0; background: transparent; }\n"
                         "QAbstractItemView:focus { border: none; padding: 0; }\n"
                         "QAbstractItemView::item:focus { border: 2px solid $(outline-focus.normal); }");
}

QString GalleryStyles::messages()
{
    return QStringLiteral("#messages { background: transparent; border: 2px solid transparent; border-radius: 6px; }\n"
                          "#messages:focus { border-color: $(outline-focus.normal); }\n"
                          "#messages_content { background: transparent; }");
}

QString GalleryStyles::textField()
{
    return QStringLiteral(R"(
$backgroundColors: input-background; $borderColors: input-border; $textColors: input-text;
$borders: all; $borderRadius: 6; padding: 5px;
selection-background-color: $(selection-background.normal); selection-color: $(selection-text.normal);
QTextEdit:focus { border-width: 2px; padding: 4px; outline: none; }
)") + scrollBars();
}

QString GalleryStyles::codeField()
{
    return textField();
}

QString GalleryStyles::textBrowser()
{
    return QStringLiteral(R"(
$backgroundColors: list-background; $borderColors: list-border; $textColors: text-primary;
$borders: all; $borderRadius: 6; padding: 5px;
selection-background-color: $(selection-background.normal); selection-color: $(selection-text.normal);
QTextEdit:focus { border-width: 2px; padding: 4px; outline: none; }
)") + scrollBars();
}

QString GalleryStyles::dateField()
{
    return QStringLiteral(R"(
$backgroundColors: input-background; $borderColors: input-border; $textColors: input-text;
$borders: all; $borderRadius: 6; padding: 5px;
selection-background-color: $(selection-background.normal); selection-color: $(selection-text.normal);
QAbstractSpinBox:focus { border-width: 2px; padding: 4px; }
QAbstractSpinBox::up-button { subcontrol-origin: border; subcontrol-position: top right; width: 22px;
    border: none; border-radius: 4px; margin: 2px 2px 0 2px; }
QAbstractSpinBox::down-button { subcontrol-origin: border; subcontrol-position: bottom right; width: 22px;
    border: none; border-radius: 4px; margin: 0 2px 2px 2px; }
QAbstractSpinBox::up-arrow { width: 8px; height: 5px; %1 }
QAbstractSpinBox::up-arrow:disabled { %2 }
QAbstractSpinBox::down-arrow { width: 8px; height: 5px; %3 }
QAbstractSpinBox::down-arrow:disabled { %4 }
)")
               .arg(arrow(true, "$(input-text.normal)"), arrow(true, "$(input-text.disabled)"),
                    arrow(false, "$(input-text.normal)"), arrow(false, "$(input-text.disabled)"))
        + partRules(QStringLiteral("QAbstractSpinBox::up-button"), {"background-color: button-ghost-background"},
                    MouseStates)
        + partRules(QStringLiteral("QAbstractSpinBox::down-button"), {"background-color: button-ghost-background"},
                    MouseStates);
}

QString GalleryStyles::radioButton()
{
    // The mark is the middle of a radial gradient; it is there when the button is checked.
    QString rules = QStringLiteral("$textColors: text-primary; spacing: 8px; background: transparent;\n"
                                   "QRadioButton::indicator { width: 16px; height: 16px; border-style: solid; "
                                   "border-width: 1px; border-radius: 9px; }\n"
                                   "QRadioButton:focus { color: $(text-accent.focused); }\n")
        + partRules(QStringLiteral("QRadioButton::indicator"),
                    {"background-color: control-indicator-background", "border-color: control-indicator-border"});
    const auto checked = [&rules](const char *pseudoState, const char *fill, const char *mark) {
        rules += QStringLiteral("QRadioButton::indicator:checked%1 { background: qradialgradient(cx:0.5, cy:0.5, "
                                "radius:0.5, fx:0.5, fy:0.5, stop:0 %3, stop:0.4 %3, stop:0.5 %2, stop:1 %2); }\n")
                     .arg(QLatin1String(pseudoState), QLatin1String(fill), QLatin1String(mark));
    };
    checked("", "$(control-indicator-background.checked)", "$(control-indicator-mark.checked)");
    checked(":disabled", "$(control-indicator-background.disabled)", "$(control-indicator-mark.disabled)");
    rules += QStringLiteral("QRadioButton::indicator:focus { border-width: 2px; width: 14px; height: 14px; }\n");
    return rules;
}

QString GalleryStyles::slider()
{
    const std::initializer_list<const char *> track {"background-color: slider-track-background"};
    const std::initializer_list<const char *> fill {"background-color: slider-fill-background"};
    return QStringLiteral(R"(
QSlider { background: transparent; }
QSlider:horizontal { min-height: 20px; } QSlider:vertical { min-width: 20px; }
QSlider::groove { border: none; border-radius: 2px; }
QSlider::groove:horizontal { height: 4px; } QSlider::groove:vertical { width: 4px; }
QSlider::sub-page, QSlider::add-page { border: none; border-radius: 2px; }
QSlider::handle { width: 14px; height: 14px; border-style: solid; border-width: 2px; border-radius: 9px; }
QSlider::handle:horizontal { margin: -7px 0; } QSlider::handle:vertical { margin: 0 -7px; }
)") + partRules(QStringLiteral("QSlider::add-page:horizontal"), track)
        + partRules(QStringLiteral("QSlider::sub-page:horizontal"), fill)
        + partRules(QStringLiteral("QSlider::sub-page:vertical"), track)
        + partRules(QStringLiteral("QSlider::add-page:vertical"), fill)
        + partRules(QStringLiteral("QSlider::handle"),
                    {"background-color: slider-handle-background", "border-color: slider-handle-border"});
}

QString GalleryStyles::progressBar()
{
    return QStringLiteral("$backgroundColors: progress-track-background; $textColors: progress-text; $borders: all; "
                          "$borderColors: progress-track-border; $borderRadius: 3; text-align: center;\n"
                          "QProgressBar::chunk { border-radius: 2px; }\n")
        + partRules(QStringLiteral("QProgressBar::chunk"), {"background-color: progress-fill-background"}, MouseStates);
}

QString GalleryStyles::menu()
{
    return QStringLiteral(R"(
$backgroundColors: menu-background; $borderColors: menu-border; $textColors: menu-item-text;
$borders: all; $borderRadius: 8; padding: 5px;
QMenu::item { padding: 5px 16px 5px 26px; border: none; border-radius: 4px;
    background-color: $(menu-item-background.normal); color: $(menu-item-text.normal); }
QMenu::item:selected { background-color: $(menu-item-background.hovered); color: $(menu-item-text.hovered); }
QMenu::item:disabled { background-color: $(menu-item-background.disabled); color: $(menu-item-text.disabled); }
QMenu::separator { height: 1px; margin: 5px 8px; background-color: $(menu-separator.normal); }
)");
}

namespace {

// With the focus the border is wider, and the contents stay where they are.
QString buttonStyle(const QString &kind, const QSize &padding)
{
    return QStringLiteral("$backgroundColors: button-%1-background; $borderColors: button-%1-border; "
                          "$textColors: button-%1-text; $borders: all; $borderRadius: 6 focus; padding: %2px %3px;\n"
                          "QPushButton:focus { border-width: 2px; padding: %4px %5px; }")
        .arg(kind)
        .arg(padding.height())
        .arg(padding.width())
        .arg(padding.height() - 1)
        .arg(padding.width() - 1);
}

} // namespace

QString GalleryStyles::pushButton(const QString &kind)
{
    return buttonStyle(kind, QSize(15, 5));
}

QString GalleryStyles::svgButton(const QString &kind)
{
    return buttonStyle(kind, QSize(11, 1));
}

QString GalleryStyles::iconButton(const QString &kind)
{
    return buttonStyle(kind, QSize(7, 7));
}

QString GalleryStyles::railButton()
{
    return QStringLiteral("$backgroundColors: navigation-item-background; $textColors: navigation-item-text; "
                          "$borders: none; $borderRadius: 8 focus; padding: 6px 2px;");
}

QString GalleryStyles::iconBars()
{
    return QStringLiteral(R"(
QToolBar { background: transparent; border: none; padding: 0; spacing: 4px; }
QToolBar::separator { width: 1px; margin: 6px 4px; background-color: $(outline-secondary.normal); }
QToolButton { border-style: solid; border-width: 1px; border-radius: 6px; padding: 5px; }
QToolButton:focus { border-width: 2px; padding: 4px; }
QToolButton::menu-indicator { image: none; width: 0; }
QTabBar { background: transparent; border: none; outline: none; }
QTabBar::tab { padding: 6px 12px; border: 2px solid transparent; background: transparent;
    color: $(qx-underlineButton-text.normal); }
QTabBar::tab:selected { border-bottom-color: $(outline-focus.normal); color: $(qx-underlineButton-text.checked); }
QTabBar::tab:hover { color: $(qx-underlineButton-text.hovered); }
QTabBar::tab:focus { border-color: $(outline-focus.normal); border-radius: 6px; }
QTabBar::tab:disabled { color: $(qx-underlineButton-text.disabled); }
)")
        + partRules(QStringLiteral("QToolButton"),
                    {"background-color: button-ghost-background", "border-color: button-ghost-border",
                     "color: button-ghost-text"});
}

QString GalleryStyles::toolBar()
{
    return QStringLiteral("background: transparent; border: none;\n"
                          "QPushButton { border-style: solid; border-width: 1px; border-radius: 6px; "
                          "padding: 5px 9px; }\n"
                          "QPushButton:focus { border-width: 2px; padding: 4px 8px; }\n")
        + partRules(QStringLiteral("QPushButton"),
                    {"background-color: button-ghost-background", "border-color: button-ghost-border",
                     "color: button-ghost-text"});
}

QString GalleryStyles::menuWithIcons()
{
    // A checked icon has the color for the checked background.
    return menu() + QStringLiteral(R"(
QMenu::item { padding-left: 12px; }
QMenu::icon { padding: 0 8px; }
QMenu::item:checked { background-color: $(menu-item-background.checked); color: $(menu-item-text.checked); }
QMenu::item:checked:selected { background-color: $(menu-item-background.hovered); color: $(menu-item-text.hovered); }
)");
}
