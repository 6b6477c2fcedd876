#include "GalleryBar.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"

#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/widgets/WSlider.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

void select(QComboBox *box, const QVariant &data)
{
    const QSignalBlocker silent(box);
    box->setCurrentIndex(box->findData(data));
}

} // namespace

GalleryBar::GalleryBar(const GalleryThemes &themes, QWidget *parent)
    : WFrame(parent)
    , m_fields(new FlowLayout(24, 8))
{
    setObjectName(QStringLiteral("bar"));
    setCSS(GalleryStyles::bar());
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(32, 10, 32, 12);
    row->addLayout(m_fields);

    m_family = addChoice(tr("Theme"), QStringLiteral("theme"));
    const auto families = themes.families();
    for (const GalleryThemes::Family &family : families)
        m_family->addItem(family.title, family.name);
    m_brightness = addChoice(tr("Appearance"), QStringLiteral("appearance"));
    m_brightness->addItem(tr("Light"), false);
    m_brightness->addItem(tr("Dark"), true);
    m_themeType = addChoice(tr("Window's theme type"), QStringLiteral("themeType"));
    m_themeType->addItem(tr("Global"), QStringLiteral("global"));
    m_themeType->addItem(tr("Light"), QStringLiteral("light"));
    m_themeType->addItem(tr("Dark"), QStringLiteral("dark"));
    m_themeType->addItem(tr("Inverted"), QStringLiteral("inverted"));
    m_highContrast = new QPushButton(tr("High"));
    m_highContrast->setCheckable(true);
    addField(tr("Contrast"), QStringLiteral("contrast"), m_highContrast);
    m_direction = addChoice(tr("Direction"), QStringLiteral("direction"));
    m_direction->addItem(tr("Left to right"), int(Qt::LeftToRight));
    m_direction->addItem(tr("Right to left"), int(Qt::RightToLeft));

    auto *scale = new QWidget;
    auto *scaleRow = new QHBoxLayout(scale);
    scaleRow->setContentsMargins(0, 0, 0, 0);
    scaleRow->setSpacing(8);
    m_fontScale = new WSlider(Qt::Horizontal);
    m_fontScale->setCSS(GalleryStyles::slider());
    m_fontScale->setRange(50, 150);
    m_fontScale->setSingleStep(5);
    m_fontScale->setPageStep(10);
    m_fontScale->setValue(100);
    m_fontScale->setFixedWidth(120);
    m_fontScale->setAccessibleName(tr("Font scale"));
    m_fontScale->setElementUniqueId(QStringLiteral("gallery.fontScale"));
    m_fontScaleValue = new Label(tr("%1 %").arg(100), WFont::BodySecondary);
    scaleRow->addWidget(m_fontScale);
    scaleRow->addWidget(m_fontScaleValue);
    addField(tr("Font scale"), QStringLiteral("fontScale"), scale);
    scale->setFocusProxy(m_fontScale);

    for (QComboBox *box : {m_family, m_brightness})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &GalleryBar::requestTheme);
    connect(m_highContrast, &QPushButton::toggled, this, &GalleryBar::requestTheme);
    connect(m_themeType, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT themeTypeRequested(m_themeType->currentData().toString()); });
    connect(m_direction, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT directionRequested(Qt::LayoutDirection(m_direction->currentData().toInt())); });
    connect(m_fontScale, &WSlider::valueChanged, this, &GalleryBar::requestFontScale);
}

QComboBox *GalleryBar::addChoice(const QString &title, const QString &id)
{
    auto *box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    addField(title, id, box);
    return box;
}

void GalleryBar::addField(const QString &title, const QString &id, QWidget *field)
{
    auto *column = new QWidget;
    column->setObjectName(QStringLiteral("bar_") + id);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(new Label(title, WFont::BodyTertiary, Label::Secondary));
    layout->addWidget(field);
    layout->addStretch();
    followFontToken(field, WFont::BodySecondary);
    field->setMinimumHeight(34);
    field->setAccessibleName(title);
    m_fields->addWidget(column);
}

void GalleryBar::show(const GalleryThemes::Choice &choice)
{
    select(m_family, choice.family);
    select(m_brightness, choice.dark);
    const QSignalBlocker silent(m_highContrast);
    m_highContrast->setChecked(choice.highContrast);
}

void GalleryBar::showThemeType(const QString &themeType)
{
    select(m_themeType, themeType);
}

void GalleryBar::showDirection(Qt::LayoutDirection direction)
{
    select(m_direction, int(direction));
}

void GalleryBar::requestTheme()
{
    Q_EMIT themeRequested(
        {m_family->currentData().toString(), m_brightness->currentData().toBool(), m_highContrast->isChecked()});
}

void GalleryBar::requestFontScale(int percent)
{
    m_fontScaleValue->setText(tr("%1 %").arg(percent));
    Q_EMIT fontScaleRequested(float(percent) / 100.0f);
}
