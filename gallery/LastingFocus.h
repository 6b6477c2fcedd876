#pragma once

#include <QGraphicsScene>

class QWidget;

/// A keyboard focus that many widgets show at the same time.
///
/// A widget asks the widget that its focus is passed on to whether it has the focus. Here that is a widget embedded in
/// a scene of its own which is told once that it is active, and so keeps its focus for good. The widgets that are lent
/// this focus paint with their own code and style exactly what they paint with the keyboard's focus, while the
/// keyboard's focus stays where it is.
class LastingFocus : public QGraphicsScene
{
public:
    static void lendTo(QWidget *widget);

private:
    LastingFocus();

    QWidget *m_holder;
};
