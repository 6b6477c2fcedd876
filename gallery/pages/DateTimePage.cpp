#include "DateTimePage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "StateCard.h"

#include <UiElements/widgets/WDateTimeEdit.h>
#include <UiElements/widgets/WTimeEdit.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

// A moment that does not depend on the day on which the gallery is looked at.
QDateTime moment()
{
    return QDateTime(QDate(2024, 5, 16), QTime(9, 30));
}

template <typename Edit>
Edit *dressed(Edit *edit, const QString &format)
{
    edit->setFontToken(WFont::BodySecondary);
    edit->setCSS(GalleryStyles::dateField());
    edit->setLocale(QLocale::c());
    edit->setDateTime(moment());
    edit->setDisplayFormat(format);
    return edit;
}

} // namespace

DateTimePage::DateTimePage()
    : Page(tr("Date and time"), tr("Fields that are stepped through with the arrow keys, section by section."))
{
    addCard(new StateCard(QStringLiteral("WTimeEdit"), tr("Pressed is the upper button."),
                          [] { return dressed(new WTimeEdit, QStringLiteral("HH:mm")); }));
    addCard(new StateCard(QStringLiteral("WDateTimeEdit"), tr("Date and time in one field."),
                          [] { return dressed(new WDateTimeEdit, QStringLiteral("d MMM, HH:mm")); }));

    WFrame *card = addCard(tr("A meeting"), tr("Both with more room; the second field does not go below the first."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    auto *from = dressed(new WDateTimeEdit, QStringLiteral("dddd, d MMMM yyyy, HH:mm"));
    from->setAccessibleName(tr("Starts"));
    auto *to = dressed(new WTimeEdit, QStringLiteral("HH:mm"));
    to->setAccessibleName(tr("Ends"));
    to->setTime(moment().time().addSecs(45 * 60));
    const auto follow = [from, to] {
        to->setMinimumTime(from->time());
    };
    connect(from, &WDateTimeEdit::dateTimeChanged, to, follow);
    follow();
    row->addWidget(new Label(tr("Starts"), WFont::BodySecondary));
    row->addWidget(from);
    row->addSpacing(16);
    row->addWidget(new Label(tr("Ends"), WFont::BodySecondary));
    row->addWidget(to);
    row->addStretch();
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
}
