#include <UiElements/widgets/WRadioButton.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

WRadioButton::WRadioButton(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
    theme().setBorrows();
}

WRadioButton::WRadioButton(const QString &text, QWidget *parent)
    : Themed(text, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
    theme().setBorrows();
}

void WRadioButton::paintEvent(QPaintEvent *event)
{
    const QWidget *model = theme().model();
    if (!model) {
        QRadioButton::paintEvent(event);
        return;
    }
    // QRadioButton's own asks the style of this one for the size of icons.
    QStyleOptionButton option;
    option.initFrom(this);
    option.text = text();
    option.state |= isChecked() ? QStyle::State_On : QStyle::State_Off;
    if (isDown())
        option.state |= QStyle::State_Sunken;
    QPainter painter(this);
    model->style()->drawControl(QStyle::CE_RadioButton, &option, &painter, model);
}
