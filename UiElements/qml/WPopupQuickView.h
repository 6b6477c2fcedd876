#pragma once

#include <UiElements/qml/WQuickView.h>

#include <QByteArray>
#include <QRect>

/// A QML window that points at something with an arrow and closes when attention goes elsewhere: by Escape, a press
/// outside of it, or when it or its parent window is no longer active.
class UIELEMENTS_EXPORT WPopupQuickView : public WQuickView
{
    Q_OBJECT

public:
    /// Where along its side the arrow sits; the values are those of WQmlBalloon::ArrowAlignment.
    enum Alignment { LeftAlignment, CenterAlignment, RightAlignment, TopAlignment, BottomAlignment };
    Q_ENUM(Alignment)

    explicit WPopupQuickView(QQmlEngine *engine, QWindow *parentWindow = nullptr, const ViewOptions &options = {});
    ~WPopupQuickView() override;

    /// Sets a boolean property of what the popup was opened from, such as the "down" of a button, for as long as the
    /// popup lives. An object that does not have the property is reported and left alone.
    void setupActivationItem(QObject *item, const QByteArray &property);

    /// The arrow offset with which an arrow on that side points at the middle of the target.
    int adjustArrowOffset(Qt::ArrowType arrow) const;

Q_SIGNALS:
    /// The popup opened on the other side of its target; `arrow` is the new side of the arrow.
    void arrowFlipped(Qt::ArrowType arrow);
    /// The popup was pushed along its target, or no longer is: ask adjustArrowOffset().
    void arrowOrthogonalChanged();

public Q_SLOTS:
    /// Shows the popup next to a rectangle of the desktop. The arrow is on the side of the popup that is named:
    /// Qt::UpArrow opens it below the target. Where the screen has no room the popup is flipped to the other side and
    /// pushed along the target. The size and the offset of the arrow are those of the balloon that draws it.
    void showFrom(const QRect &target, Qt::ArrowType arrow = Qt::UpArrow,
                  WPopupQuickView::Alignment alignment = CenterAlignment, int arrowOffset = 0, int arrowSize = 10);

    void onActiveChanged() override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void place() override;
    bool closesOnEscape() const override { return true; }

private:
    friend class PopupContext;
    void releaseActivationItem();
    QPoint wantedPosition(Qt::ArrowType arrow) const;
    Qt::ArrowType fittingArrow(const QRect &area) const;
    void moveTo(const QRect &area);

    QRect m_target;
    QPoint m_parentPosition; // when the target was told
    Qt::ArrowType m_wantedArrow = Qt::NoArrow;
    Qt::ArrowType m_arrow = Qt::NoArrow; // as told last
    Alignment m_alignment = CenterAlignment;
    int m_wantedOffset = 0;
    int m_arrowSize = 0;
    QPoint m_push; // from where the arrow wants the popup to where there is room
    bool m_isPlaced = false; // next to a target
    QPointer<QObject> m_activationItem;
    QByteArray m_activationProperty;
};
