#pragma once

#include <QWidget>

class WFrame;

/// A frame with a grip beside it, by which the mouse or the arrow keys make it wider and narrower.
class SizedFrame : public QWidget
{
    Q_OBJECT

public:
    SizedFrame(const QString &name, int width, QWidget *parent = nullptr);

    /// What takes the layout that is shown.
    QWidget *content() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setFrameWidth(int width);
    bool keyPressed(int key);

    WFrame *m_frame;
    WFrame *m_grip;
    int m_dragStart = 0;
    int m_widthAtStart = 0;
};
