#pragma once

#include <QObject>
#include <QVariant>

#include <functional>

/// The model of a controller: any value, or an object that lives elsewhere and may end at any time.
class ControllerModel
{
public:
    explicit ControllerModel(std::function<void()> changed);
    ~ControllerModel();
    ControllerModel(const ControllerModel &) = delete;
    ControllerModel &operator=(const ControllerModel &) = delete;

    QVariant value() const { return m_value; }
    void set(const QVariant &value);
    /// Deletes a model that is an object, later.
    void deleteLater();

private:
    const std::function<void()> m_changed;
    QVariant m_value;
    QObject *m_object = nullptr; // null when it has ended
    QMetaObject::Connection m_connection;
};
