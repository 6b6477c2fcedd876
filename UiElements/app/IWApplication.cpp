#include <UiElements/app/IWApplication.h>

#include "IWApplication_p.h"

#include <UiElements/qml/WQmlEngine.h>

#include <QTimer>

IWApplication::IWApplication(int &argc, char **argv)
    : QApplication(argc, argv)
    , d(std::make_unique<IWApplicationPrivate>())
{
    qRegisterMetaType<WColorSet>("WColorSet");
    connect(this, &QCoreApplication::aboutToQuit, this, [this] {
        d->isShuttingDown = true;
        // Where an event loop runs again the application has not ended after all.
        QTimer::singleShot(0, this, [this] { d->isShuttingDown = false; });
    });
}

IWApplication::~IWApplication()
{
    d->isShuttingDown = true;
    delete d->qmlEngine; // without an event loop nobody else does
}

const WColorSets &IWApplication::getColorSets() const
{
    return d->colorSets.sets();
}

const WColorSets &IWApplication::getInvertedColorSets() const
{
    return d->invertedColorSets.sets();
}

const WColorTokens &IWApplication::getColorTokens() const
{
    return d->colorTokens;
}

bool IWApplication::getIsDarkTheme() const
{
    return d->isDarkTheme;
}

bool IWApplication::getIsHighContrastTheme() const
{
    return d->isHighContrastTheme;
}

bool IWApplication::animationsDisabled() const
{
    return d->animationsDisabled;
}

WQmlEngine *IWApplication::getQmlEngine() const
{
    if (!d->qmlEngine && !d->isShuttingDown) {
        qInfo("[UILifecycle][Startup] Creating WQmlEngine.");
        d->qmlEngine = new WQmlEngine(nullptr);
        connect(this, &QCoreApplication::aboutToQuit, d->qmlEngine.data(), &QObject::deleteLater);
        qInfo("[UILifecycle][Startup] Finished creating WQmlEngine.");
    }
    return static_cast<WQmlEngine *>(d->qmlEngine.data());
}

void IWApplication::setColorSets(const WColorSets &sets)
{
    d->colorSets.setSets(sets);
    Q_EMIT colorSetsChanged();
}

void IWApplication::setInvertedColorSets(const WColorSets &sets)
{
    d->invertedColorSets.setSets(sets);
    Q_EMIT colorSetsChanged();
}

void IWApplication::setColorTokens(const WColorTokens &tokens)
{
    d->colorTokens = tokens;
}

void IWApplication::setAnimationsDisabled(bool disabled)
{
    d->hostSetAnimations = true;
    IWApplicationPrivate::changeAnimationsDisabled(this, disabled);
}

void IWApplicationPrivate::changeAnimationsDisabled(IWApplication *app, bool disabled)
{
    if (std::exchange(app->d->animationsDisabled, disabled) != disabled)
        Q_EMIT app->animationsDisabledChanged(disabled);
}

bool IWApplication::changeIsDarkTheme(bool isDarkTheme)
{
    return std::exchange(d->isDarkTheme, isDarkTheme) != isDarkTheme;
}

bool IWApplication::changeIsHighContrastTheme(bool isHighContrastTheme)
{
    return std::exchange(d->isHighContrastTheme, isHighContrastTheme) != isHighContrastTheme;
}
