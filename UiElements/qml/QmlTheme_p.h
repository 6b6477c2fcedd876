#pragma once

#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/WColorSet.h>

#include <QJSValue>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QJSEngine;
class QQmlEngine;

/// What QML sees of the application's theme, as the singleton `Theme` of the module UiElements 1.0.
///
///     color: Theme.colorSet("background-primary").normal
///     color: Theme.colorSet("text-primary", controller.themeType)[enabled ? "normal" : "disabled"]
///     font: Theme.fonts.BodyPrimary
///
/// Bindings follow the theme, its flags and the font scale by themselves.
class QmlTheme : public QObject
{
    Q_OBJECT
    /// A function of the name of a set and, if wanted, of a theme type. That it is a property is what makes a binding
    /// that calls it follow the theme: of a method QML would not know that its answer may change.
    Q_PROPERTY(QJSValue colorSet READ colorSet NOTIFY colorsChanged)
    Q_PROPERTY(bool isDark READ isDark NOTIFY colorsChanged)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY colorsChanged)
    Q_PROPERTY(bool animationsDisabled READ animationsDisabled NOTIFY animationsDisabledChanged)
    /// Whether the application is laid out from right to left.
    Q_PROPERTY(bool isMirrored READ isMirrored NOTIFY isMirroredChanged)
    Q_PROPERTY(WScaledFonts *fonts READ fonts CONSTANT)
    Q_PROPERTY(WScaledFonts *messagingFonts READ messagingFonts CONSTANT)
    Q_PROPERTY(WScaledFonts *meetingFonts READ meetingFonts CONSTANT)

public:
    explicit QmlTheme(QJSEngine *engine);
    static QObject *create(QQmlEngine *, QJSEngine *engine);

    QJSValue colorSet() const { return m_colorSet; }
    bool isDark() const;
    bool isHighContrast() const;
    bool animationsDisabled() const;
    bool isMirrored() const;
    WScaledFonts *fonts() const { return m_fonts[FontManagerEnum::Default]; }
    WScaledFonts *messagingFonts() const { return m_fonts[FontManagerEnum::MessagingView]; }
    WScaledFonts *meetingFonts() const { return m_fonts[FontManagerEnum::MeetingView]; }

    Q_INVOKABLE WColorSet findColorSet(const QString &name, const QString &themeType = QString()) const;
    /// The source of an Image: an icon of the library's set, by its name with its size ("chat_24"), in that color.
    /// Sharp at every ratio where the Image has a `sourceSize`. Empty for an invalid color, and, with a warning, for an
    /// icon that there is not.
    Q_INVOKABLE QUrl icon(const QString &name, const QColor &color) const;

Q_SIGNALS:
    void colorsChanged();
    void animationsDisabledChanged();
    void isMirroredChanged();

private:
    QJSValue m_colorSet;
    mutable QString m_unknownType; // reported last
    QPointer<WScaledFonts> m_fonts[FontManagerEnum::MeetingView + 1];
};
