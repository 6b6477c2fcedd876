#pragma once

#include <UiElements/uielements_export.h>

#include <QMap>
#include <QObject>
#include <QVariant>

/// What a QML view talks to: QML binds to its properties and calls its slots.
///
/// It belongs to whoever made it. A view only knows it through the property `controller` of its root object.
class UIELEMENTS_EXPORT WQmlController : public QObject
{
    Q_OBJECT

public:
    explicit WQmlController(QObject *parent = nullptr);
    ~WQmlController() override;

public Q_SLOTS:
    /// Takes the values to start with. Does nothing here.
    virtual void init(const QMap<QString, QVariant> &initialProperties);
};
