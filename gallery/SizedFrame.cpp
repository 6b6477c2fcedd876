#include "SizedFrame.h"

#include "GalleryStyles.h"

#include <UiElements/widgets/WFrame.h>

#include <QHBoxLayout>
#include <QKeyEvent>

namespace {

constexpr int Step = 8;

} // namespace

SizedFrame::SizedFrame(const QString &name, int width, QWidget *parent)
    : QWidget(parent)
    , m_frame(new WFrame)
    , m_grip(new WFrame)
{
    m_frame->setObjectName(QStringLiteral("panel"));
    m_frame->setCSS(GalleryStyles::panel());
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    m_frame->setSizePolicy(policy);
    m_grip->setCSS(GalleryStyles::grip());
    m_grip->setFixedWidth(10);
    m_grip->setMinimumHeight(48);
    m_grip->setMaximumHeight(48);
    m_grip->setFocusPolicy(Qt::StrongFocus);
    m_grip->setCursor(Qt::SplitHCursor);
    m_grip->setAccessibleName(tr("Width of %1").arg(name));
    m_grip->setToolTip(tr("Drag, or press the arrow keys"));
    m_grip->installEventFilter(this);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    // The frame has its width or, where that is more than there is, all.
    row->addWidget(m_frame, 1000);
    row->addWidget(m_grip);
    row->addStretch(1);
    setFrameWidth(width);
}

QWidget *SizedFrame::content() const
{
    return m_frame;
}

void SizedFrame::setFrameWidth(int width)
{
    const int available = isVisible() ? this->width() - m_grip->width() - layout()->spacing() : width;
    const int chosen = qMax(qMin(width, available), m_frame->minimumSizeHint().width());
    m_frame->setMaximumWidth(chosen);
    m_grip->setAccessibleDescription(tr("%1 pixels").arg(chosen));
}

bool SizedFrame::keyPressed(int key)
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    switch (key) {
    case Qt::Key_Left: setFrameWidth(m_frame->width() + (isMirrored ? Step : -Step)); return true;
    case Qt::Key_Right: setFrameWidth(m_frame->width() + (isMirrored ? -Step : Step)); return true;
    case Qt::Key_Home: setFrameWidth(0); return true;
    case Qt::Key_End: setFrameWidth(width()); return true;
    default: return false;
    }
}

bool SizedFrame::eventFilter(QObject *watched, QEvent *event)
{
    const auto at = [event] {
        return static_cast<QMouseEvent *>(event)->globalX();
    };
    switch (event->type()) {
    case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent *>(event)->key());
    case QEvent::MouseButtonPress:
        m_dragStart = at();
        m_widthAtStart = m_frame->width();
        return true;
    case QEvent::MouseMove: {
        const int moved = at() - m_dragStart;
        setFrameWidth(m_widthAtStart + (layoutDirection() == Qt::RightToLeft ? -moved : moved));
        return true;
    }
    default: return QWidget::eventFilter(watched, event);
    }
}

void SizedFrame::showEvent(QShowEvent *event)
{
    // What the frame holds was made after the grip, and Tab would come to it behind.
    const QList<QWidget *> inside = m_frame->findChildren<QWidget *>();
    if (!inside.isEmpty())
        setTabOrder(inside.last(), m_grip);
    QWidget::showEvent(event);
}
