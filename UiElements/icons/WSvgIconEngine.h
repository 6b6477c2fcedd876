#pragma once

#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/uielements_export.h>

#include <QIconEngine>

/// The engine of a QIcon that takes its colors from the theme: for menus, actions, tab bars and plain Qt widgets.
///
///     action->setIcon(WSvgIconEngine::icon(WSvgRenderer::resourcePath("search_16"), "button-ghost-text"));
///
/// Each time it is painted it looks the color set up, so it follows the theme by itself; when the application announces
/// other colors, all visible widgets are asked to paint. It is drawn in the pixels of the window, and
/// mirrored, where the set says so, by the direction of the application: a QIcon does not know who shows it. The mode
/// and the state of a QIcon choose the color: Disabled, Active (hovered), Selected and On (checked), Normal.
class UIELEMENTS_EXPORT WSvgIconEngine : public QIconEngine
{
public:
    /// With a second path the icon has another shape when it is on. What cannot be loaded is logged and draws nothing;
    /// a color-set name that the theme does not have is reported once and draws nothing until a theme has it.
    explicit WSvgIconEngine(const QString &path, const QString &colorSetName,
                            WThemeUtils::AppThemeType themeType = WThemeUtils::AppThemeTypeGlobal,
                            const QString &checkedPath = QString());
    ~WSvgIconEngine() override;

    static QIcon icon(const QString &path, const QString &colorSetName,
                      WThemeUtils::AppThemeType themeType = WThemeUtils::AppThemeTypeGlobal,
                      const QString &checkedPath = QString());

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    /// The size is in pixels.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QIconEngine *clone() const override;
    void virtual_hook(int id, void *data) override;

private:
    WSvgIcon &iconFor(QIcon::State state);
    WColorSet colorSet();

    WSvgIcon m_icon;
    std::unique_ptr<WSvgIcon> m_checkedIcon;
    QString m_colorSetName;
    WThemeUtils::AppThemeType m_themeType;
    bool m_isNameReported = false;
};
