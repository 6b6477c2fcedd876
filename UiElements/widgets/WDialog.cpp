#include <UiElements/widgets/WDialog.h>

#include <QCloseEvent>
#include <QPointer>

WDialog::WDialog(QWidget *parent, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    initTheme();
}

void WDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<WDialog> self(this);
    QDialog::closeEvent(event);
    if (self && event->isAccepted())
        Q_EMIT onClose();
}
