#include <UiElements/app/WAppSignals.h>

#include <UiElements/app/WApplication.h>

#include <QDebug>
#include <QPoint>
#include <QRect>
#include <QWidget>

WAppSignals::WAppSignals(QObject *parent)
    : QObject(parent)
{
    // The host's types register themselves (see HostTypes.h), and what is not here Qt knows.
    qRegisterMetaType<std::string>();
    qRegisterMetaType<std::vector<std::string>>();
    qRegisterMetaType<Qt::ArrowType>();
    qRegisterMetaType<QWindow::Visibility>();
    qRegisterMetaType<QWindow *>();
    qRegisterMetaType<QPointer<QWidget>>();
    qRegisterMetaType<WKeySequenceLookup::Shortcut>();
}

WAppSignals *WAppSignals::get()
{
    const WApplication *app = WApplication::find();
    return app ? app->getAppSignals() : nullptr;
}

QKeySequence WAppSignals::getKeySequence(WAppSignals::Shortcut shortcutId) const
{
    qWarning("ShortcutId (%d) is not registered! This should never happen", int(shortcutId));
    return QKeySequence();
}
