#include <UiElements/qml/DialogContext.h>

#include <UiElements/qml/IWQmlViewFactory.h>
#include <UiElements/qml/WQuickView.h>

#include <QQmlEngine>
#include <QQmlExpression>
#include <QWidget>

DialogContext::DialogContext(const IWQmlViewFactory &factory, const QString &source, QObject *parent)
    : WQuickViewContext(factory, source, parent)
{
    setParentWidget(qobject_cast<QWidget *>(parent));
}

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
    followTitle(dialog);
    return dialog;
}

void DialogContext::followTitle(WQuickView *dialog)
{
    if (!controller() || controller()->metaObject()->indexOfProperty("model") < 0)
        return;
    // QML reads the title of whatever the model is: a map, an object of C++ or one of QML.
    auto *const title = new QQmlExpression(dialog->engine()->rootContext(), controller(),
                                           QStringLiteral("model && model.title || ''"), dialog);
    const auto show = [title, dialog, shown = QString()]() mutable {
        if (dialog->title() != shown)
            return;
        shown = title->evaluate().toString();
        dialog->setTitle(shown);
    };
    title->setNotifyOnValueChanged(true);
    connect(title, &QQmlExpression::valueChanged, dialog, show);
    connect(controller(), &QObject::destroyed, title, [title] { delete title; });
    Q_EMIT title->valueChanged();
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
