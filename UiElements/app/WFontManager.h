#pragma once

#include <UiElements/app/FontManagerEnum.h>
#include <UiElements/uielements_export.h>

#include <QObject>

#include <array>

class WScaledFonts;

/// Holds the scaled fonts of each kind of view.
///
/// The application object creates the one instance as its child.
class UIELEMENTS_EXPORT WFontManager : public QObject
{
    Q_OBJECT

public:
    explicit WFontManager(QObject *parent = nullptr);

    /// The manager of the application object. Without one "Unable to find WApplication" is logged and null returned.
    static WFontManager *get();

    /// The fonts of that kind of view, which stay the manager's. Never null: a type that does not exist is reported and
    /// gives the set of Default.
    WScaledFonts *getFont(FontManagerEnum::FontType type) const;

    /// For the application object: every set takes over the application's font scale and announces fontTokenChanged().
    void onFontScaleFactorChanged();

public Q_SLOTS:
    /// Scales one kind of view; its set announces fontTokenChanged(). A view or a factor that does not exist is
    /// reported and changes nothing.
    void setScalingFactor(FontManagerEnum::FontType view, FontManagerEnum::FontScalingFactor factor);

private:
    WScaledFonts *find(FontManagerEnum::FontType type) const;

    std::array<WScaledFonts *, FontManagerEnum::MeetingView + 1> m_fonts; // by FontType
};
