#include <UiElements/qml/WQmlDialogController.h>

#include "ControllerModel_p.h"

WQmlDialogController::WQmlDialogController(QObject *parent)
    : WQmlController(parent)
    , m_model(std::make_unique<ControllerModel>([this] { Q_EMIT modelChanged(); }))
{
}

WQmlDialogController::~WQmlDialogController()
{
    if (m_takesModelOwnership)
        m_model->deleteLater();
}

void WQmlDialogController::setTakesModelOwnership(bool takes)
{
    if (m_takesModelOwnership == takes)
        return;
    m_takesModelOwnership = takes;
    Q_EMIT takesModelOwnershipChanged();
}

QVariant WQmlDialogController::model() const
{
    return m_model->value();
}

void WQmlDialogController::setModel(const QVariant &model)
{
    m_model->set(model);
}
