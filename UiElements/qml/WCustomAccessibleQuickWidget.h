#pragma once

#include <UiElements/qml/WQuickWidget.h>

/// A QML widget that shows its items to a screen reader as what is inside it, in the place of what Qt makes of them.
class UIELEMENTS_EXPORT WCustomAccessibleQuickWidget : public WQuickWidget
{
    Q_OBJECT

public:
    explicit WCustomAccessibleQuickWidget(QQmlEngine *engine, QWidget *parent = nullptr);
    ~WCustomAccessibleQuickWidget() override;

Q_SIGNALS:
    /// The focus leaves the widget for another one.
    void focusAboutToChange();

public Q_SLOTS:
    /// Takes over text that an input method has not finished, which would be lost with the focus.
    void onFocusAboutToChange();

protected:
    bool event(QEvent *event) override;
};
