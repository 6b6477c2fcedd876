#pragma once

#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>

#include <QApplication>

#include <memory>

class IWApplicationPrivate;
class WQmlEngine;

/// The application object as the theme engine sees it: color sets, theme flags and the QML engine.
///
/// A host constructs a WApplication.
class UIELEMENTS_EXPORT IWApplication : public QApplication
{
    Q_OBJECT
    Q_PROPERTY(
        bool animationsDisabled READ animationsDisabled WRITE setAnimationsDisabled NOTIFY animationsDisabledChanged)

public:
    /// The arguments must outlive the object, as with QApplication.
    IWApplication(int &argc, char **argv);
    ~IWApplication() override;

    /// The sets of the theme that the application shows. The reference stays valid until the sets are replaced.
    const WColorSets &getColorSets() const;
    /// The sets of the opposite theme.
    const WColorSets &getInvertedColorSets() const;
    const WColorTokens &getColorTokens() const;
    bool getIsDarkTheme() const;
    bool getIsHighContrastTheme() const;
    bool animationsDisabled() const;
    /// Made when it is first asked for. It belongs to nobody and ends when the application is about to quit, or at the
    /// latest with the application object; null from then on.
    WQmlEngine *getQmlEngine() const;

    /// Replaces the sets whole and emits colorSetsChanged(), equal sets included.
    void setColorSets(const WColorSets &sets);
    void setInvertedColorSets(const WColorSets &sets);
    /// Replaces the tokens whole, without a signal.
    void setColorTokens(const WColorTokens &tokens);
    /// From then on a WThemeLoader leaves it as it is, until its motion is set.
    void setAnimationsDisabled(bool disabled);

Q_SIGNALS:
    /// The colors that elements draw with may be others now. Also emitted after the dark or the high-contrast flag
    /// changed, because the flags decide which registry a theme type means. A slot connected after the first themed
    /// widget was made finds all of them restyled; one connected earlier runs before that.
    void colorSetsChanged();
    void animationsDisabledChanged(bool animationsDisabled);

protected:
    /// Stores the flag; false when it had that value already.
    bool changeIsDarkTheme(bool isDarkTheme);
    bool changeIsHighContrastTheme(bool isHighContrastTheme);

private:
    friend class IWApplicationPrivate;
    std::unique_ptr<IWApplicationPrivate> d;
};
