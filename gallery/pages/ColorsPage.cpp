#include "ColorsPage.h"

#include "ColorSwatches.h"
#include "Label.h"
#include "PlainParts.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The names of the states above their swatches.
class StateNames : public QWidget
{
public:
    StateNames()
    {
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(ColorSwatches::Spacing);
        for (const QString &name : WColorSet::stateNames()) {
            auto *label = new Label(QString(name.at(0).toUpper()), WFont::TagLabelSecondary, Label::Secondary);
            label->setToolTip(name);
            label->setAlignment(Qt::AlignCenter);
            label->setFixedWidth(ColorSwatches::SwatchWidth);
            row->addWidget(label);
        }
    }
};

QStringList setNames()
{
    QStringList names;
    for (const auto &entry : WThemeUtils::getAppWColorSets())
        names << QString::fromStdString(entry.first);
    names.sort();
    return names;
}

} // namespace

ColorsPage::ColorsPage()
    : Page(tr("Colors"),
           tr("Every color set of the theme in its six states: normal, hovered, pressed, disabled, focused, checked. "
              "A line across a swatch means fully transparent."))
{
    WFrame *card = addCard(QString(), QString());
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->setSpacing(16);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    auto *field = new QLineEdit;
    field->setPlaceholderText(tr("A part of a name, for example: button"));
    field->setAccessibleName(tr("Search color sets"));
    field->setClearButtonEnabled(false);
    field->setMinimumWidth(320);
    followFontToken(field, WFont::BodySecondary);
    followPlaceholderColor(field);
    row->addWidget(new Label(tr("Search"), WFont::BodySecondary));
    row->addWidget(field);
    m_count = new Label(QString(), WFont::BodySecondary, Label::Secondary);
    row->addWidget(m_count);
    row->addStretch();
    column->addLayout(row);
    m_grid = new QGridLayout;
    m_grid->setHorizontalSpacing(12);
    m_grid->setVerticalSpacing(8);
    column->addLayout(m_grid);
    const QStringList names = setNames();
    for (const QString &name : names)
        m_rows.append({name, new Label(name, WFont::RadioButtonLabelSecondary), new ColorSwatches(name)});
    for (int side = 0; side < 2; ++side) {
        m_grid->addWidget(new StateNames, 0, 3 * side + 1);
        m_grid->setColumnStretch(3 * side, 1);
    }
    m_grid->setColumnMinimumWidth(2, 24);
    connect(field, &QLineEdit::textChanged, this, &ColorsPage::search);
    search(QString());
}

// Two columns, read downwards.
void ColorsPage::search(const QString &text)
{
    QVector<Row> found;
    for (const Row &row : qAsConst(m_rows)) {
        const bool shown = row.name.contains(text.trimmed(), Qt::CaseInsensitive);
        m_grid->removeWidget(row.label);
        m_grid->removeWidget(row.swatches);
        row.label->setVisible(shown);
        row.swatches->setVisible(shown);
        row.swatches->setAccessibleName(row.name);
        if (shown)
            found.append(row);
    }
    const int half = (found.size() + 1) / 2;
    for (int i = 0; i < found.size(); ++i) {
        const int side = i < half ? 0 : 1;
        m_grid->addWidget(found.at(i).label, 1 + i - side * half, 3 * side);
        m_grid->addWidget(found.at(i).swatches, 1 + i - side * half, 3 * side + 1);
    }
    m_count->setText(tr("%1 of %2").arg(found.size()).arg(m_rows.size()));
}
