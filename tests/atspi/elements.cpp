// A window with a few elements, for a screen reader to find and operate. "Quit" ends the program.

#include <UiElements/app/WApplication.h>
#include <UiElements/controls/WLabel.h>
#include <UiElements/controls/WPillTabButton.h>
#include <UiElements/controls/WPushButton.h>
#include <UiElements/controls/WSvgPushButton.h>
#include <UiElements/controls/WToggleButton.h>
#include <UiElements/controls/WUnderlineButton.h>
#include <UiElements/icons/WSvgRenderer.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WMainWindow.h>
#include <UiElements/widgets/WMenu.h>
#include <UiElements/widgets/WWidget.h>

#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <initializer_list>

int main(int argc, char **argv)
{
    WApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("elements"));
    QApplication::setStyle(QStringLiteral("fusion"));

    const QString folder = QStringLiteral(UIELEMENTS_CONFIG_DIR);
    const WPalette palette = WThemeUtils::parseWColorsFromJson(folder + QStringLiteral("/colors.json"));
    app.setColorSets(WThemeUtils::parseWColorSetsFromJson(folder + QStringLiteral("/themes/default.json"), palette));

    auto *status = new WLabel(QStringLiteral("Nothing sent"));
    auto *send = new WPushButton(QStringLiteral("&Send"));
    auto *chats = new WUnderlineButton(QStringLiteral("Chats"));
    auto *captions = new WToggleButton(QStringLiteral("Captions"));
    auto *unread = new WPillTabButton(QStringLiteral("Unread"));
    auto *microphone = new WSvgPushButton;
    microphone->setSvgIcon(WSvgRenderer::resourcePath(QStringLiteral("mic_16")));
    microphone->setAccessibleName(QStringLiteral("Microphone"));
    microphone->setEnabled(false);
    auto *more = new WLabel(QStringLiteral("More"));
    auto *presence = new WPushButton(QStringLiteral("Presence"));
    presence->setMenu(new WMenu(presence));
    presence->menu()->addAction(QStringLiteral("Away"));
    QObject::connect(presence->menu(), &QMenu::aboutToShow, status,
                     [status] { status->setText(QStringLiteral("Choose")); });
    auto *quit = new WPushButton(QStringLiteral("Quit"));
    QObject::connect(send, &QPushButton::clicked, status, [status] { status->setText(QStringLiteral("Sent")); });
    QObject::connect(more, &WLabel::clicked, chats, [chats] { chats->setBadgeVisible(true); });
    QObject::connect(quit, &QPushButton::clicked, &app, &QApplication::quit);

    WMainWindow window;
    window.setWindowTitle(QStringLiteral("Elements"));
    auto *central = new WWidget;
    auto *column = new QVBoxLayout(central);
    for (QWidget *widget :
         std::initializer_list<QWidget *> {status, send, chats, captions, unread, microphone, more, presence, quit})
        column->addWidget(widget);
    window.setCentralWidget(central);
    window.show();
    QTimer::singleShot(0, &app, [] {
        std::puts("ready");
        std::fflush(stdout);
    });
    return QApplication::exec();
}
