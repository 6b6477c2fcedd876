#pragma once

#include <UiElements/qml/WQmlEngineLoader.h>

#include <QPointer>

class UIELEMENTS_EXPORT WQmlEngineLoader::Impl : public QObject
{
    Q_OBJECT

public:
    explicit Impl(QObject *parent);
    ~Impl() override;

    WQmlEngine *engine() const;
    void load();

Q_SIGNALS:
    void sceneGraphCriticalError();
    void engineInitialized(WQmlEngine *qmlEngine);

private:
    QPointer<WQmlEngine> m_engine;
};
