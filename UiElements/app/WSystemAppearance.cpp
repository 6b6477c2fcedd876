#include <UiElements/app/WSystemAppearance.h>

#ifdef UIELEMENTS_DBUS
#include <UiElements/app/WSystemAppearancePortal_p.h>
#endif

#include <QDebug>
#include <QPointer>
#include <QRegularExpression>
#include <QVariantMap>

using ColorScheme = WSystemAppearance::ColorScheme;

#ifdef UIELEMENTS_DBUS
namespace {

/// What each source asks for. The portal's own keys are the newest. Where they ask for nothing, or do not exist yet,
/// the older ones of one desktop count, which portals pass on.
struct Wishes
{
    ColorScheme portalScheme = ColorScheme::NoPreference;
    ColorScheme gnomeScheme = ColorScheme::NoPreference;
    ColorScheme gtkScheme = ColorScheme::NoPreference;
    bool portalContrast = false;
    bool gnomeContrast = false;
    bool gtkContrast = false;
    bool portalMotion = false;
    bool gnomeMotion = false;

    ColorScheme colorScheme() const
    {
        for (ColorScheme scheme : {portalScheme, gnomeScheme}) {
            if (scheme != ColorScheme::NoPreference)
                return scheme;
        }
        return gtkScheme;
    }
    bool highContrast() const { return portalContrast || gnomeContrast || gtkContrast; }
    bool reducedMotion() const { return portalMotion || gnomeMotion; }

    /// False for a value that cannot be meant, which changes nothing. Settings of other kinds are none of our business.
    bool take(const QString &space, const QString &key, const QVariant &value);

private:
    bool takePortal(const QString &key, const QVariant &value);
    bool takeInterface(const QString &key, const QVariant &value);
};

bool Wishes::take(const QString &space, const QString &key, const QVariant &value)
{
    if (space == WSystemAppearancePortal::appearanceSpace)
        return takePortal(key, value);
    if (space == WSystemAppearancePortal::interfaceSpace)
        return takeInterface(key, value);
    if (space == WSystemAppearancePortal::accessibilitySpace && key == QLatin1String("high-contrast")) {
        if (value.userType() != QMetaType::Bool)
            return false;
        gnomeContrast = value.toBool();
    }
    return true;
}

bool Wishes::takePortal(const QString &key, const QVariant &value)
{
    const bool isNumber = value.userType() == QMetaType::UInt;
    const uint number = value.toUInt();
    if (key == QLatin1String("color-scheme")) {
        constexpr ColorScheme schemes[] = {ColorScheme::NoPreference, ColorScheme::Dark, ColorScheme::Light};
        if (!isNumber || number >= std::size(schemes))
            return false;
        portalScheme = schemes[number];
    } else if (key == QLatin1String("contrast") || key == QLatin1String("reduced-motion")) {
        if (!isNumber || number > 1)
            return false;
        (key == QLatin1String("contrast") ? portalContrast : portalMotion) = number == 1;
    }
    return true;
}

bool Wishes::takeInterface(const QString &key, const QVariant &value)
{
    if (key == QLatin1String("enable-animations")) {
        if (value.userType() != QMetaType::Bool)
            return false;
        gnomeMotion = !value.toBool();
        return true;
    }
    const bool isScheme = key == QLatin1String("color-scheme");
    if (!isScheme && key != QLatin1String("gtk-theme"))
        return true;
    if (value.userType() != QMetaType::QString)
        return false;

    const QString text = value.toString();
    if (!isScheme) {
        // A dark theme is one by custom: "Adwaita-dark", "Yaru-blue-dark", "Mint-Y-Dark-Aqua".
        static const QRegularExpression dark(QStringLiteral("[-_ :]dark\\b|^HighContrastInverse$"),
                                             QRegularExpression::CaseInsensitiveOption);
        gtkScheme = text.contains(dark) ? ColorScheme::Dark : ColorScheme::NoPreference;
        gtkContrast = text.startsWith(QLatin1String("HighContrast"));
    } else if (text == QLatin1String("default")) {
        gnomeScheme = ColorScheme::NoPreference;
    } else if (text == QLatin1String("prefer-dark")) {
        gnomeScheme = ColorScheme::Dark;
    } else if (text == QLatin1String("prefer-light")) {
        gnomeScheme = ColorScheme::Light;
    } else {
        return false;
    }
    return true;
}

} // namespace
#endif

class WSystemAppearancePrivate
{
public:
    explicit WSystemAppearancePrivate(WSystemAppearance *appearance)
        : q(appearance)
    {
    }

#ifdef UIELEMENTS_DBUS
    void followPortal();
    void complain(const QString &what);
    void set(const Wishes &newWishes);

    Wishes wishes;
    bool hasComplained = false;
#endif
    WSystemAppearance *const q;
    ColorScheme colorScheme = ColorScheme::NoPreference;
    bool highContrast = false;
    bool reducedMotion = false;
    bool isKnown = false;
};

#ifdef UIELEMENTS_DBUS
void WSystemAppearancePrivate::followPortal()
{
    auto *portal = new WSystemAppearancePortal(q);
    const auto unusable = [](const QString &space, const QString &key, const QVariant &value) {
        QString text;
        QDebug(&text).nospace() << value;
        return QStringLiteral("%1 %2 = %3").arg(space, key, text);
    };
    QObject::connect(portal, &WSystemAppearancePortal::answered, q,
                     [this, unusable](const WSystemAppearancePortal::Settings &settings) {
                         Wishes answer;
                         for (auto space = settings.cbegin(); space != settings.cend(); ++space) {
                             for (auto entry = space->cbegin(); entry != space->cend(); ++entry) {
                                 if (!answer.take(space.key(), entry.key(), *entry))
                                     complain(unusable(space.key(), entry.key(), *entry));
                             }
                         }
                         set(answer);
                     });
    QObject::connect(portal, &WSystemAppearancePortal::changed, q,
                     [this, unusable](const QString &space, const QString &key, const QVariant &value) {
                         Wishes changed = wishes;
                         if (changed.take(space, key, value))
                             set(changed);
                         else
                             complain(unusable(space, key, value));
                     });
    QObject::connect(portal, &WSystemAppearancePortal::misunderstood, q,
                     [this](const QString &what) { complain(what); });
}

void WSystemAppearancePrivate::complain(const QString &what)
{
    // A portal with a fault has it every time.
    if (!std::exchange(hasComplained, true))
        qWarning().noquote() << "WSystemAppearance: ignored what the desktop's portal sent:" << what;
}

void WSystemAppearancePrivate::set(const Wishes &newWishes)
{
    wishes = newWishes;
    const bool wasKnown = std::exchange(isKnown, true);
    const ColorScheme oldScheme = std::exchange(colorScheme, wishes.colorScheme());
    const bool isOtherScheme = oldScheme != colorScheme;
    const bool isOtherContrast = std::exchange(highContrast, wishes.highContrast()) != highContrast;
    const bool isOtherMotion = std::exchange(reducedMotion, wishes.reducedMotion()) != reducedMotion;

    // Any of them may end the object.
    const QPointer<WSystemAppearance> appearance(q);
    if (!wasKnown)
        Q_EMIT appearance->knownChanged();
    if (appearance && isOtherScheme)
        Q_EMIT appearance->colorSchemeChanged();
    if (appearance && isOtherContrast)
        Q_EMIT appearance->highContrastChanged();
    if (appearance && isOtherMotion)
        Q_EMIT appearance->reducedMotionChanged();
}
#endif

WSystemAppearance::WSystemAppearance(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<WSystemAppearancePrivate>(this))
{
#ifdef UIELEMENTS_DBUS
    d->followPortal();
#endif
}

WSystemAppearance::~WSystemAppearance() = default;

ColorScheme WSystemAppearance::colorScheme() const
{
    return d->colorScheme;
}

bool WSystemAppearance::highContrast() const
{
    return d->highContrast;
}

bool WSystemAppearance::reducedMotion() const
{
    return d->reducedMotion;
}

bool WSystemAppearance::isKnown() const
{
    return d->isKnown;
}
