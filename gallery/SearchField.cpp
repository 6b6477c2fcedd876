#include "SearchField.h"

#include "PlainParts.h"

#include <UiElements/icons/WSvgIconEngine.h>

#include <QAction>
#include <QKeyEvent>

SearchField::SearchField(const QString &name, QWidget *parent)
    : QLineEdit(parent)
    , m_clear(addAction(QIcon(), QLineEdit::TrailingPosition))
{
    setPlaceholderText(name);
    setAccessibleName(name);
    followFontToken(this, WFont::BodySecondary);
    followPlaceholderColor(this);
    // Like the texts around it, also where what is written runs the other way.
    followDirection(this, [this](Qt::LayoutDirection direction) {
        setAlignment((direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute
                     | Qt::AlignVCenter);
    });
    m_clear->setText(tr("Clear"));
    m_clear->setToolTip(tr("Clear (Esc)"));
    m_clear->setVisible(false);
    giveIcon();
    connect(m_clear, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, m_clear,
            [this](const QString &text) { m_clear->setVisible(!text.isEmpty()); });
}

void SearchField::giveIcon()
{
    m_iconType = WThemeUtils::getThemeTypeOfWidget(this);
    m_clear->setIcon(WSvgIconEngine::icon(WSvgRenderer::resourcePath(QStringLiteral("close_16")),
                                          QStringLiteral("input-text"), m_iconType));
}

bool SearchField::event(QEvent *event)
{
    const bool mayBeOfAnotherTheme = event->type() == QEvent::StyleChange || event->type() == QEvent::Show;
    if (mayBeOfAnotherTheme && WThemeUtils::getThemeTypeOfWidget(this) != m_iconType)
        giveIcon();
    return QLineEdit::event(event);
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else if (m_results && event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier)
        m_results->setFocus(Qt::TabFocusReason);
    else
        QLineEdit::keyPressEvent(event);
    // Qt turns the field to the direction of what is written, for good.
    if (testAttribute(Qt::WA_SetLayoutDirection))
        unsetLayoutDirection();
}
