#include <UiElements/qml/WQmlPopupController.h>

#include "ControllerModel_p.h"

WQmlPopupController::WQmlPopupController(QObject *parent)
    : WQmlController(parent)
    , m_model(std::make_unique<ControllerModel>([this] { Q_EMIT modelChanged(); }))
{
}

WQmlPopupController::~WQmlPopupController()
{
    if (m_takesModelOwnership)
        m_model->deleteLater();
}

template <typename T>
void WQmlPopupController::set(T &member, const T &value, void (WQmlPopupController::*changed)())
{
    if (member == value)
        return;
    member = value;
    Q_EMIT(this->*changed)();
}

void WQmlPopupController::setTakesModelOwnership(bool takes)
{
    set(m_takesModelOwnership, takes, &WQmlPopupController::takesModelOwnershipChanged);
}

void WQmlPopupController::setArrowOffset(int offset)
{
    set(m_arrowOffset, offset, &WQmlPopupController::arrowOffsetChanged);
}

void WQmlPopupController::setArrowSize(int size)
{
    set(m_arrowSize, size, &WQmlPopupController::arrowSizeChanged);
}

void WQmlPopupController::setArrowAlignment(WQmlBalloon::ArrowAlignment alignment)
{
    set(m_arrowAlignment, alignment, &WQmlPopupController::arrowAlignmentChanged);
}

void WQmlPopupController::setArrowAnchor(WQmlBalloon::ArrowAnchor anchor)
{
    set(m_arrowAnchor, anchor, &WQmlPopupController::arrowAnchorChanged);
}

QVariant WQmlPopupController::model() const
{
    return m_model->value();
}

void WQmlPopupController::setModel(const QVariant &model)
{
    m_model->set(model);
}

void WQmlPopupController::setThemeType(const QString &themeType)
{
    set(m_themeType, themeType, &WQmlPopupController::themeTypeChanged);
}

void WQmlPopupController::setPopupQuickView(WPopupQuickView *view)
{
    if (m_popupQuickView == view)
        return;
    if (m_popupQuickView)
        disconnect(m_popupQuickView, nullptr, this, nullptr);
    m_popupQuickView = view;
    if (!view)
        return;
    connect(view, &WPopupQuickView::arrowFlipped, this, &WQmlPopupController::flipArrow);
    connect(view, &WPopupQuickView::arrowOrthogonalChanged, this, &WQmlPopupController::adjustArrowOffset);
}

void WQmlPopupController::adjustArrowOffset()
{
    if (m_popupQuickView)
        setArrowOffset(m_popupQuickView->adjustArrowOffset(WQmlBalloon::arrowTypeFromArrowAnchor(m_arrowAnchor)));
}

void WQmlPopupController::flipArrow(Qt::ArrowType arrow)
{
    setArrowAnchor(WQmlBalloon::arrowAnchorFromArrowType(arrow));
}
