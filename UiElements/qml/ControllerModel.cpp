#include "ControllerModel_p.h"

#include <QJSValue>

ControllerModel::ControllerModel(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

ControllerModel::~ControllerModel()
{
    QObject::disconnect(m_connection);
}

void ControllerModel::set(const QVariant &value)
{
    if (m_value == value)
        return;
    QObject::disconnect(m_connection);
    m_value = value;
    if (value.userType() == qMetaTypeId<QJSValue>())
        m_object = value.value<QJSValue>().toQObject();
    else
        m_object = value.canConvert<QObject *>() ? value.value<QObject *>() : nullptr;
    if (m_object) {
        m_connection = QObject::connect(m_object, &QObject::destroyed, m_object, [this] {
            m_object = nullptr;
            m_value.clear();
            m_changed();
        });
    }
    m_changed();
}

void ControllerModel::deleteLater()
{
    if (m_object)
        m_object->deleteLater();
}
