#include <UiElements/qml/DialogContext.h>

#include <UiElements/qml/IWQmlViewFactory.h>
#include <UiElements/qml/WQuickView.h>

DialogContext::~DialogContext() = default;

void DialogContext::accept()
{
    if (!isOpen())
        return;
    m_isAccepted = true;
    close();
}

void DialogContext::reject()
{
    close();
}

QPointer<WQuickView> DialogContext::createView(const IWQmlViewFactory &factory)
{
    m_isAccepted = false;
    const QPointer<WQuickView> dialog = factory.createQmlDialog(source(), parentWindow(), controller(), m_fixedSize);
    if (!dialog)
        return dialog;
    ViewOptions options = dialog->getViewOptions();
    options.closeOnEscape = true;
    dialog->setViewOptions(options);
    dialog->setModality(m_modality);
    return dialog;
}

void DialogContext::rootLoaded(QObject *root)
{
    connectRoot(root, "accepted()", "accept()");
    connectRoot(root, "rejected()", "reject()");
}

void DialogContext::viewClosed()
{
    if (m_isAccepted)
        Q_EMIT accepted();
    else
        Q_EMIT rejected();
}
