#include "StateCard.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "LastingFocus.h"
#include "Page.h"

#include <UiElements/controls/WPillTabButton.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QSplitter>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

QModelIndex secondRow(const QAbstractItemView *view)
{
    return view->model()->index(1, 0, view->rootIndex());
}

struct Access : QAbstractSpinBox
{
    static void initOption(const QAbstractSpinBox *box, QStyleOptionSpinBox *option)
    {
        (box->*(&Access::initStyleOption))(option);
    }
};

// The place in the element where the mouse stands: where a state has something to show.
QPoint mousePlace(const QWidget *widget)
{
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(widget)) {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.subControls = QStyle::SC_All;
        option.orientation = slider->orientation();
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = option.sliderValue = slider->sliderPosition();
        option.upsideDown = slider->orientation() == Qt::Horizontal && option.direction == Qt::RightToLeft;
        option.direction = Qt::LeftToRight;
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
    }
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget)) {
        QStyleOptionSpinBox option;
        Access::initOption(box, &option);
        return box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box).center();
    }
    return widget->rect().center();
}

// The part of the element that the mouse is over.
QWidget *mouseReceiver(QWidget *widget)
{
    if (const auto *view = qobject_cast<QAbstractItemView *>(widget))
        return view->viewport();
    if (const auto *splitter = qobject_cast<QSplitter *>(widget))
        return splitter->handle(1);
    return widget;
}

QPoint mousePlaceIn(QWidget *widget)
{
    if (const auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        return view->visualRect(secondRow(view)).center();
    }
    return mousePlace(mouseReceiver(widget));
}

// As the system's events, but without the application in between, which would move the keyboard's focus.
void deliver(QWidget *receiver, QEvent *event)
{
    static_cast<QObject *>(receiver)->event(event);
}

void hover(QWidget *widget)
{
    QWidget *receiver = mouseReceiver(widget);
    const QPoint place = mousePlaceIn(widget);
    widget->setAttribute(Qt::WA_UnderMouse);
    receiver->setAttribute(Qt::WA_UnderMouse);
    QHoverEvent enter(QEvent::HoverEnter, place, QPoint(-1, -1));
    // A push button is hovered once the mouse has moved on it.
    QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    if (qobject_cast<QPushButton *>(widget))
        deliver(receiver, &move);
    // Item views follow the mouse in the events of their viewport.
    if (receiver != widget && qobject_cast<QAbstractItemView *>(widget))
        QCoreApplication::sendEvent(receiver, &enter);
    else
        deliver(receiver, &enter);
}

void press(QWidget *widget)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setDown(true);
        return;
    }
    hover(widget);
    if (auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        view->selectionModel()->setCurrentIndex(secondRow(view),
                                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return;
    }
    // A spin button that is held steps at once; what follows is kept away by the card.
    const QVariant date = widget->property("date");
    const QVariant time = widget->property("time");
    QWidget *receiver = mouseReceiver(widget);
    const QPoint place = mousePlace(widget);
    QMouseEvent down(QEvent::MouseButtonPress, place, receiver->mapTo(receiver->window(), place),
                     receiver->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    deliver(receiver, &down);
    // Only what differs: another date makes a field for times let go of its button.
    if (date.isValid() && widget->property("date") != date)
        widget->setProperty("date", date);
    if (time.isValid() && widget->property("time") != time)
        widget->setProperty("time", time);
}

void check(QWidget *widget)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setChecked(true);
    else if (auto *view = qobject_cast<QAbstractItemView *>(widget))
        view->selectionModel()->select(secondRow(view),
                                       QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool canBePressed(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QAbstractSlider *>(widget)
        || qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QAbstractItemView *>(widget)
        || qobject_cast<const QSplitter *>(widget);
}

bool canBeChecked(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return (button && button->isCheckable()) || qobject_cast<const QAbstractItemView *>(widget);
}

bool canBe(const QWidget *widget, WColorSet::State state)
{
    switch (state) {
    case WColorSet::Pressed: return canBePressed(widget);
    case WColorSet::Checked: return canBeChecked(widget);
    case WColorSet::Focused: return widget->focusPolicy() != Qt::NoFocus;
    default: return true;
    }
}

void keepMouseAndKeysAway(QWidget *widget)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
    const QList<QWidget *> parts = widget->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setFocusPolicy(Qt::NoFocus);
}

void focus(QWidget *widget)
{
    if (auto *view = qobject_cast<QAbstractItemView *>(widget))
        view->selectionModel()->setCurrentIndex(secondRow(view), QItemSelectionModel::NoUpdate);
    // Reached by the keyboard, a field for dates has its first section selected.
    if (auto *edit = qobject_cast<QDateTimeEdit *>(widget))
        edit->setSelectedSection(edit->sectionAt(0));
    LastingFocus::lendTo(widget);
    // A text shows its cursor when it is told of the focus.
    if (qobject_cast<QTextEdit *>(widget)) {
        QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
        deliver(widget, &in);
    }
}

void force(QWidget *widget, WColorSet::State state)
{
    switch (state) {
    case WColorSet::Normal: break;
    case WColorSet::Hovered: hover(widget); break;
    case WColorSet::Pressed: press(widget); break;
    case WColorSet::Disabled: widget->setEnabled(false); break;
    case WColorSet::Focused: focus(widget); break;
    case WColorSet::Checked: check(widget); break;
    }
}

QString stateTitle(WColorSet::State state)
{
    QString name = WColorSet::stateNames().at(state);
    name[0] = name.at(0).toUpper();
    return name;
}

} // namespace

StateCard::StateCard(const QString &title, const QString &description, const Make &make, const Force &forceFirst,
                     QWidget *parent)
    : WFrame(parent)
    , m_force(forceFirst)
    , m_grid(new QGridLayout)
{
    setObjectName(QStringLiteral("card"));
    setCSS(GalleryStyles::card());
    QVBoxLayout *column = fillCard(this, title, description);
    m_grid->setHorizontalSpacing(16);
    m_grid->setVerticalSpacing(8);
    column->addLayout(m_grid);
    addVariant(title, make);
}

void StateCard::addVariant(const QString &title, const Make &make)
{
    ++m_rows;
    for (int state = 0; state < WColorSet::StateCount; ++state)
        addSpecimen(m_rows, WColorSet::State(state), title, make);
}

void StateCard::addSpecimen(int row, WColorSet::State state, const QString &title, const Make &make)
{
    QWidget *widget = make();
    widget->setAccessibleName(title + QLatin1String(", ") + WColorSet::stateNames().at(state));
    const bool can = m_force || canBe(widget, state);
    if (state != WColorSet::Normal)
        keepMouseAndKeysAway(widget);
    // A column of nothing but elements with a limit would have that limit, and not its share of the card.
    const bool fixed = widget->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed
        || widget->maximumWidth() < QWIDGETSIZE_MAX || qobject_cast<WPillTabButton *>(widget);
    m_grid->addWidget(widget, row, state, fixed ? Qt::AlignLeading | Qt::AlignTop : Qt::Alignment());
    m_grid->setColumnStretch(state, 1);
    m_grid->setColumnMinimumWidth(state, 112);

    QString caption = stateTitle(state);
    widget->setProperty("specimenState", int(state));
    const bool lasts = state == WColorSet::Disabled || state == WColorSet::Checked;
    if (!can)
        caption = tr("%1: as normal").arg(caption);
    else if (lasts)
        bringAbout(widget, state);
    else if (state != WColorSet::Normal)
        widget->installEventFilter(this);
    if (row == 1)
        m_grid->addWidget(new Label(caption, WFont::BodyTertiary, Label::Secondary), 0, state);
}

void StateCard::bringAbout(QWidget *widget, WColorSet::State state) const
{
    if (!m_force || !m_force(widget, state))
        force(widget, state);
}

void StateCard::setInert()
{
    keepMouseAndKeysAway(m_grid->itemAtPosition(1, WColorSet::Normal)->widget());
}

// Where the mouse is depends on where things are, and Qt takes the mouse away from what it hides. So these states are
// brought about whenever the element is shown, gets another size or another look. What a held button does with time
// stays away.
bool StateCard::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::Timer: return true;
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        QMetaObject::invokeMethod(
            widget,
            [this, widget] {
                if (widget->isVisible())
                    bringAbout(widget, WColorSet::State(widget->property("specimenState").toInt()));
            },
            Qt::QueuedConnection);
        break;
    default: break;
    }
    return WFrame::eventFilter(watched, event);
}
