#pragma once

#include <UiElements/qml/WQmlBalloon.h>
#include <UiElements/qml/WQuickViewContext.h>

#include <QByteArray>
#include <QRect>

class QQuickItem;
class WPopupQuickView;
class WQmlPopupController;

/// A QML popup: what it is placed against and how long it lives.
///
/// It is placed against a rectangle of the desktop, a widget or a QML item, with its arrow in the middle of one side of
/// it. It goes along when its target moves, and closes when the target ends, is hidden or is scrolled out of sight, and
/// as every popup does when attention goes elsewhere (see WPopupQuickView). PopupContextTimer closes it after a time.
/// The root object of the QML closes it with signals `accepted()` and `rejected()`, if it has them.
///
/// Sides and alignments are those of a left-to-right layout. Against a target in a right-to-left layout the popup is
/// mirrored.
class UIELEMENTS_EXPORT PopupContext : public WQuickViewContext
{
    Q_OBJECT

public:
    using WQuickViewContext::WQuickViewContext;
    ~PopupContext() override;

    /// One target takes the place of the other. The parent window of the popup is the one that the target is in, unless
    /// setParentWindow() or setParentWidget() named another; for a rectangle, the one that the parent of the context is
    /// in, if that is a widget. An open popup moves to its new target.
    void setTarget(const QRect &globalRect);
    /// With a rectangle the target is that part of the widget, which may lie in a list or in a text.
    void setTarget(QWidget *widget, const QRect &part = QRect());
    void setTarget(QQuickItem *item);
    /// On the desktop, as it is now; an invalid rectangle when there is no target that can be seen.
    QRect targetRect() const;

    /// The side of the popup that carries the arrow and where on it the arrow sits. With an arrow on top, the default,
    /// the popup opens below the target. On a screen without room there it opens on the other side. A side, an
    /// alignment or a distance that there cannot be is reported and changes nothing.
    WQmlBalloon::ArrowAnchor arrowAnchor() const { return m_anchor; }
    WQmlBalloon::ArrowAlignment arrowAlignment() const { return m_alignment; }
    int arrowOffset() const { return m_offset; }
    void setArrow(WQmlBalloon::ArrowAnchor anchor, WQmlBalloon::ArrowAlignment alignment = WQmlBalloon::CenterAlignment,
                  int offset = 0);

    /// A boolean property of the target that is true while the popup is open, such as the "checked" of a button. That a
    /// click changes it, too, does no harm when toggle() is what the click calls.
    void setActivationProperty(const QByteArray &property) { m_activationProperty = property; }

    /// Tells the QML where the arrow is. Without a WQmlPopupController as the controller the context makes one when it
    /// is opened; any other controller is left alone. A controller without an arrow size gets that of a balloon.
    WQmlPopupController *popupController() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void accept();
    /// Opens or closes the popup, for the click on its target. A press outside closes a popup: one that was closed by
    /// the press of this very click is not opened again.
    void toggle();

Q_SIGNALS:
    /// What the popup offers was taken. Before closed(), as with a dialog; the popup may be opened again from there.
    void accepted();

protected:
    QPointer<WQuickView> createView(const IWQmlViewFactory &factory) override;
    void showView() override;
    void viewClosed() override;
    void rootLoaded(QObject *root) override;

private:
    WPopupQuickView *popup() const;
    QWindow *targetWindow() const;
    bool isMirrored() const;
    void setTargetObject(QObject *object, const QRect &rect);
    void followTarget();
    void watch(QWidget *widget);
    void unfollowTarget();
    void targetMoved();
    void update();
    void place();
    void notePress();
    void releaseActivation();

    QRect m_rect; // on the desktop, or the part of the widget
    QPointer<QObject> m_target;
    bool m_hasTarget = false;
    QRect m_placedAt;
    QVector<QMetaObject::Connection> m_connections;
    QVector<QPointer<QObject>> m_watched;
    WQmlBalloon::ArrowAnchor m_anchor = WQmlBalloon::Top;
    WQmlBalloon::ArrowAlignment m_alignment = WQmlBalloon::CenterAlignment;
    int m_offset = 0;
    QByteArray m_activationProperty;
    QPointer<WPopupQuickView> m_activated; // the view that holds it; it lives on for a while when it is closed
    bool m_isAccepted = false;
    bool m_updateIsDue = false;
    bool m_isClosedByPress = false; // on the target; until the button is released
};
