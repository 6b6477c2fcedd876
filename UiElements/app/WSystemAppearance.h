#pragma once

#include <UiElements/uielements_export.h>

#include <QMetaType>
#include <QObject>

#include <memory>

class WSystemAppearancePrivate;

/// What the person has set on the desktop: light or dark, more contrast, less motion. GUI thread only.
///
/// This only tells; it changes nothing in the application. The settings come from the desktop's portal over D-Bus.
/// The constructor sends the question and returns without waiting: until isKnown() nothing is preferred, neither
/// contrast nor motion is touched, and so it stays where there is no bus, no portal, or none that answers. Afterwards
/// changes are followed as they happen. A portal that starts later, or again, is asked anew; one that went away leaves
/// its last answer standing, and so does a bus that ended.
///
/// Built with UIELEMENTS_DBUS=OFF the class knows nothing and never will. The bus is found by DBUS_SESSION_BUS_ADDRESS
/// or, without it, in XDG_RUNTIME_DIR. Only an address of a local socket is used, and no bus is started, as either may
/// take its time. The library has no thread of its own for this; QtDBus has, as soon as anything in a program uses it.
class UIELEMENTS_EXPORT WSystemAppearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ColorScheme colorScheme READ colorScheme NOTIFY colorSchemeChanged)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY highContrastChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(bool known READ isKnown NOTIFY knownChanged)

public:
    enum class ColorScheme { NoPreference, Light, Dark };
    Q_ENUM(ColorScheme)

    explicit WSystemAppearance(QObject *parent = nullptr);
    ~WSystemAppearance() override;

    ColorScheme colorScheme() const;
    bool highContrast() const;
    bool reducedMotion() const;
    /// True from the first answer on, also if that expressed no wish at all.
    bool isKnown() const;

    // When one of them is emitted, all values are in place already. The first answer announces knownChanged() before
    // the others, so that whoever waits for it takes all at once.
Q_SIGNALS:
    void colorSchemeChanged();
    void highContrastChanged();
    void reducedMotionChanged();
    void knownChanged(); ///< at most once

private:
    friend class WSystemAppearancePrivate;
    std::unique_ptr<WSystemAppearancePrivate> d;
};

Q_DECLARE_METATYPE(WSystemAppearance::ColorScheme)
