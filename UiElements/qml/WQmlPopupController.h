#pragma once

#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlBalloon.h>
#include <UiElements/qml/WQmlController.h>

#include <QPointer>

#include <memory>

class ControllerModel;

/// A controller with the model that a popup shows and the arrow of the balloon that it is drawn in, which follows where
/// the popup was placed.
class UIELEMENTS_EXPORT WQmlPopupController : public WQmlController
{
    Q_OBJECT
    Q_PROPERTY(bool takesModelOwnership READ takesModelOwnership WRITE setTakesModelOwnership NOTIFY
                   takesModelOwnershipChanged)
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged)
    Q_PROPERTY(int arrowSize READ arrowSize WRITE setArrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(WQmlBalloon::ArrowAlignment arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY
                   arrowAlignmentChanged)
    Q_PROPERTY(WQmlBalloon::ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged)
    Q_PROPERTY(QVariant model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)

public:
    explicit WQmlPopupController(QObject *parent = nullptr);
    ~WQmlPopupController() override;

    /// As in WQmlDialogController.
    bool takesModelOwnership() const { return m_takesModelOwnership; }
    void setTakesModelOwnership(bool takes);
    int arrowOffset() const { return m_arrowOffset; }
    void setArrowOffset(int offset);
    int arrowSize() const { return m_arrowSize; }
    void setArrowSize(int size);
    WQmlBalloon::ArrowAlignment arrowAlignment() const { return m_arrowAlignment; }
    void setArrowAlignment(WQmlBalloon::ArrowAlignment alignment);
    WQmlBalloon::ArrowAnchor arrowAnchor() const { return m_arrowAnchor; }
    void setArrowAnchor(WQmlBalloon::ArrowAnchor anchor);
    QVariant model() const;
    void setModel(const QVariant &model);
    /// "global", "light", "dark" or "inverted".
    QString themeType() const { return m_themeType; }
    void setThemeType(const QString &themeType);

    /// The arrow follows that popup from now on, and no other; null follows none.
    void setPopupQuickView(WPopupQuickView *view);

Q_SIGNALS:
    void takesModelOwnershipChanged();
    void arrowOffsetChanged();
    void arrowSizeChanged();
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void modelChanged();
    void themeTypeChanged();

public Q_SLOTS:
    void adjustArrowOffset();
    /// `arrow` is the side that the arrow is on now.
    void flipArrow(Qt::ArrowType arrow);

private:
    template <typename T>
    void set(T &member, const T &value, void (WQmlPopupController::*changed)());

    bool m_takesModelOwnership = false;
    int m_arrowOffset = 0;
    int m_arrowSize = 0;
    WQmlBalloon::ArrowAlignment m_arrowAlignment = WQmlBalloon::CenterAlignment;
    WQmlBalloon::ArrowAnchor m_arrowAnchor = WQmlBalloon::Top;
    std::unique_ptr<ControllerModel> m_model;
    QPointer<WPopupQuickView> m_popupQuickView;
    QString m_themeType = QStringLiteral("global");
};
