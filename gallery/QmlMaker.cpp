#include "QmlMaker.h"

#include <UiElements/qml/WQmlTypes.h>

QmlMaker::QmlMaker()
    : m_factory(m_loader)
    , m_engine(m_loader.getQmlEngine())
{
    WQmlTypes::registerQmlTypes();
    m_engine->setPerformanceWatcherEnabled(true);
}

QmlMaker::~QmlMaker()
{
    delete m_engine;
}
