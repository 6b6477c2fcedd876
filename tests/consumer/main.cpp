#include <UiElements/app/WApplication.h>
#include <UiElements/theme/WThemeLoader.h>
#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WRadioButton.h>
#include <UiElements/widgets/WWidget.h>

#include <QVBoxLayout>

#include <cstdio>

int main(int argc, char **argv)
{
    WApplication app(argc, argv);
    WThemeLoader theme;
    if (!theme.load(QStringLiteral(UIELEMENTS_CONFIG_DIR)))
        return 1;

    WWidget window;
    window.setCSS(QStringLiteral("$backgroundColors: background-primary;"));
    WFrame frame(&window);
    frame.setCSS(QStringLiteral("$borders: all; $borderColors: outline-primary; $borderRadius: 8;"));
    WRadioButton lightButton(QStringLiteral("Light"), &frame), darkButton(QStringLiteral("Dark"), &frame);
    for (WRadioButton *button : {&lightButton, &darkButton})
        button->setCSS(QStringLiteral("$textColors: text-primary; padding: 6px;"
                                      "::indicator { width: 8px; height: 8px; border-radius: 6px;"
                                      "  border: 2px solid $(control-indicator-border.normal); }"
                                      "::indicator:checked { background: $(control-indicator-border.checked); }"));
    lightButton.setChecked(true);
    QObject::connect(&darkButton, &QRadioButton::toggled, &theme, [&theme](bool isDark) {
        theme.setColorScheme(isDark ? WThemeLoader::ColorScheme::Dark : WThemeLoader::ColorScheme::Light);
    });

    QVBoxLayout inFrame(&frame), inWindow(&window);
    inFrame.addWidget(&lightButton);
    inFrame.addWidget(&darkButton);
    inWindow.addWidget(&frame);
    window.show();

    if (!app.arguments().contains(QStringLiteral("--check")))
        return app.exec();
    const int before = window.grab().toImage().pixelColor(2, 2).lightness();
    darkButton.click();
    const int after = window.grab().toImage().pixelColor(2, 2).lightness();
    std::puts(before > 127 && after < 128 ? "ok" : "the window did not turn dark");
}
