#include "LayoutCheck.h"

#include <UiElements/controls/WPushButton.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

namespace {

QString describe(const QWidget *widget)
{
    const QString name = widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName();
    QString text = QString::fromLatin1(widget->metaObject()->className());
    return name.isEmpty() ? text : text + QLatin1String(" \"") + name + QLatin1Char('"');
}

QString shortened(const QString &text)
{
    return text.size() > 40 ? text.left(40) + QStringLiteral("...") : text;
}

// The size that the text needs and the size that it has got; both empty when the widget shows no text.
struct TextRoom
{
    QString text;
    QSize needed;
    QSize given;
};

TextRoom roomOf(const QLabel *label)
{
    if (label->text().isEmpty())
        return {};
    const QSize given = label->contentsRect().size();
    if (!label->wordWrap())
        return {label->text(), label->minimumSizeHint() - (label->size() - given), given};
    const int frame = label->height() - given.height();
    return {label->text(), QSize(0, label->heightForWidth(label->width()) - frame), given};
}

TextRoom roomOf(const QPushButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QRect given = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    return {button->text(), button->fontMetrics().size(Qt::TextShowMnemonic, button->text()), given.size()};
}

// These know themselves what icons, paddings and text need. One that elides does so by intention.
TextRoom roomOf(const WPushButton *button)
{
    if (button->elideMode() != Qt::ElideNone)
        return {};
    return {button->plainText(), button->sizeHint(), button->size()};
}

TextRoom roomOf(const QRadioButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QRect given = button->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
    return {button->text(), button->fontMetrics().size(Qt::TextShowMnemonic, button->text()),
            given.intersected(button->rect()).size()};
}

TextRoom roomOf(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect given = box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    const QFontMetrics metrics = box->fontMetrics();
    return {box->currentText(), QSize(metrics.boundingRect(box->currentText()).width(), metrics.height()),
            given.size()};
}

TextRoom roomOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return roomOf(label);
    if (const auto *button = qobject_cast<const WPushButton *>(widget))
        return roomOf(button);
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return roomOf(button);
    if (const auto *button = qobject_cast<const QRadioButton *>(widget))
        return roomOf(button);
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return roomOf(box);
    return {};
}

void checkText(const QWidget *widget, QStringList *faults)
{
    const TextRoom room = roomOf(widget);
    if (room.text.isEmpty()
        || (room.needed.width() <= room.given.width() && room.needed.height() <= room.given.height()))
        return;
    *faults << QStringLiteral("%1: \"%2\" is cut off: needs %3 x %4, has %5 x %6")
                   .arg(describe(widget), shortened(room.text))
                   .arg(room.needed.width())
                   .arg(room.needed.height())
                   .arg(room.given.width())
                   .arg(room.given.height());
}

void checkItems(const QListView *view, QStringList *faults)
{
    const QAbstractItemModel *model = view->model();
    const int rows = model ? model->rowCount(view->rootIndex()) : 0;
    // A list of a million rows has them all of one size.
    for (int row = 0; row < (view->uniformItemSizes() ? qMin(1, rows) : rows); ++row) {
        const QModelIndex index = model->index(row, 0, view->rootIndex());
        const int needed = view->sizeHintForIndex(index).width();
        if (needed > view->viewport()->width() && view->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
            *faults << QStringLiteral("%1: item \"%2\" is cut off: needs %3, has %4")
                           .arg(describe(view), shortened(index.data().toString()))
                           .arg(needed)
                           .arg(view->viewport()->width());
    }
}

void checkSections(const QHeaderView *header, QStringList *faults)
{
    for (int section = 0; section < header->count(); ++section) {
        if (!header->isSectionHidden(section) && header->sectionSizeHint(section) > header->sectionSize(section))
            *faults << QStringLiteral("%1: \"%2\" is cut off: needs %3, has %4")
                           .arg(describe(header),
                                header->model()->headerData(section, header->orientation()).toString())
                           .arg(header->sectionSizeHint(section))
                           .arg(header->sectionSize(section));
    }
}

// What scrolls is larger than its viewport by intention, and what a style lays out itself is not ours to judge.
bool mayBeOutside(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const auto *area = parent ? qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()) : nullptr;
    return !parent || widget->isWindow() || (area && area->viewport() == parent)
        || widget->objectName().startsWith(QLatin1String("qt_"));
}

void checkPlace(const QWidget *widget, QStringList *faults)
{
    // Mirrored, a splitter of Qt places its last part one pixel too far.
    const bool inSplitter = qobject_cast<const QSplitter *>(widget->parentWidget());
    const int slack = inSplitter && widget->layoutDirection() == Qt::RightToLeft ? 1 : 0;
    if (mayBeOutside(widget) || widget->parentWidget()->rect().adjusted(0, 0, slack, 0).contains(widget->geometry()))
        return;
    const QRect place = widget->geometry();
    *faults << QStringLiteral("%1: at %2,%3 %4 x %5 it is outside of %6 with %7 x %8")
                   .arg(describe(widget))
                   .arg(place.x())
                   .arg(place.y())
                   .arg(place.width())
                   .arg(place.height())
                   .arg(describe(widget->parentWidget()))
                   .arg(widget->parentWidget()->width())
                   .arg(widget->parentWidget()->height());
}

} // namespace

QStringList LayoutCheck::faults(const QWidget *window)
{
    QStringList faults;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisibleTo(window) || widget->window() != window)
            continue;
        checkText(widget, &faults);
        checkPlace(widget, &faults);
        if (const auto *view = qobject_cast<const QListView *>(widget))
            checkItems(view, &faults);
        if (const auto *header = qobject_cast<const QHeaderView *>(widget))
            checkSections(header, &faults);
    }
    return faults;
}
