#include <UiElements/icons/WSvgIconEngine.h>

#include <UiElements/app/IWApplication.h>

#include <QApplication>
#include <QDebug>
#include <QPainter>
#include <QWidget>

namespace {

// An icon does not know who shows it, and plain widgets do not know that it changed.
void followColors()
{
    auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());
    static QPointer<IWApplication> followed;
    if (!app || followed == app)
        return;
    followed = app;
    QObject::connect(app, &IWApplication::colorSetsChanged, app, [] {
        // All, because Qt leaves opaque widgets out when it paints what is behind them.
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (widget->isVisible())
                widget->update();
        }
    });
}

QStyle::State styleState(QIcon::Mode mode, QIcon::State state)
{
    QStyle::State result = mode == QIcon::Disabled ? QStyle::State_None : QStyle::State_Enabled;
    if (mode == QIcon::Active)
        result |= QStyle::State_MouseOver;
    if (mode == QIcon::Selected)
        result |= QStyle::State_Selected;
    if (state == QIcon::On)
        result |= QStyle::State_On;
    return result;
}

} // namespace

WSvgIconEngine::WSvgIconEngine(const QString &path, const QString &colorSetName, WThemeUtils::AppThemeType themeType,
                               const QString &checkedPath)
    : m_colorSetName(colorSetName)
    , m_themeType(themeType)
{
    m_icon.setFilePath(path);
    if (!checkedPath.isEmpty()) {
        m_checkedIcon = std::make_unique<WSvgIcon>();
        m_checkedIcon->setFilePath(checkedPath);
    }
    followColors();
}

WSvgIconEngine::~WSvgIconEngine() = default;

QIcon WSvgIconEngine::icon(const QString &path, const QString &colorSetName, WThemeUtils::AppThemeType themeType,
                           const QString &checkedPath)
{
    return QIcon(new WSvgIconEngine(path, colorSetName, themeType, checkedPath));
}

void WSvgIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    if (!painter || rect.isEmpty())
        return;
    followColors(); // the icon may be older than the application object
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    WSvgIcon &icon = iconFor(state);
    icon.setIconSize(square.size());
    icon.setColorSet(colorSet());
    painter->save();
    painter->translate(square.topLeft());
    icon.draw(painter, styleState(mode, state));
    painter->restore();
}

QPixmap WSvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

QSize WSvgIconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    return size;
}

QString WSvgIconEngine::key() const
{
    return QStringLiteral("WSvgIconEngine");
}

QIconEngine *WSvgIconEngine::clone() const
{
    return new WSvgIconEngine(m_icon.getFilePath(), m_colorSetName, m_themeType,
                              m_checkedIcon ? m_checkedIcon->getFilePath() : QString());
}

void WSvgIconEngine::virtual_hook(int id, void *data)
{
    if (id == QIconEngine::IsNullHook)
        *static_cast<bool *>(data) = !m_icon.isValid();
    else
        QIconEngine::virtual_hook(id, data);
}

WSvgIcon &WSvgIconEngine::iconFor(QIcon::State state)
{
    return state == QIcon::On && m_checkedIcon ? *m_checkedIcon : m_icon;
}

// Not WThemeUtils::getColorSet(), which would report a missing name at each paint.
WColorSet WSvgIconEngine::colorSet()
{
    if (!qobject_cast<IWApplication *>(QCoreApplication::instance()))
        return WColorSet();
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(m_themeType);
    const auto found = sets.find(m_colorSetName.toStdString());
    if (found != sets.end())
        return found->second;
    if (!m_isNameReported && !sets.empty()) {
        qWarning("WSvgIconEngine - No color set of the theme is named %s", qUtf8Printable(m_colorSetName));
        m_isNameReported = true;
    }
    return WColorSet();
}
