#include <UiElements/app/WAppSignals.h>

#include <UiElements/app/WApplication.h>

#include <QDebug>

WAppSignals::WAppSignals(QObject *parent)
    : QObject(parent)
{
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
