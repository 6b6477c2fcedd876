#pragma once

#include <QWidget>

class WQuickWidget;

/// Places a QML view between widgets: it stands on the color of the cards, and its root object has the theme type of
/// the window, if it has a property for that.
class QmlSurface : public QWidget
{
    Q_OBJECT

public:
    /// What the view takes from its content; the rest is up to the layout.
    enum Fit { FitsNothing, FitsHeight, FitsSize };

    explicit QmlSurface(const QString &name, Fit fit = FitsNothing, QWidget *parent = nullptr);

    /// A child of this.
    void setView(WQuickWidget *view);
    WQuickWidget *view() const { return m_view; }

    /// Returns when all views that can be seen in the window show what their QML is by now.
    static void showFrames(const QWidget *window);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void followRoot();
    void dress();
    void fit();

    const Fit m_fit;
    WQuickWidget *m_view = nullptr;
};
