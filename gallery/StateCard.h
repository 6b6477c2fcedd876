#pragma once

#include <UiElements/theme/WColorSet.h>
#include <UiElements/widgets/WFrame.h>

#include <functional>

class QGridLayout;

/// A card that shows one element in its six states, side by side and without a mouse.
///
/// Each state is brought about in a real element and painted by its own code: hovered by the mark and the hover event
/// that Qt itself gives, pressed by a mouse button that is never released, focused by a LastingFocus. Only the first
/// specimen answers to mouse and keyboard; the others do not see them and so keep their state.
class StateCard : public WFrame
{
    Q_OBJECT

public:
    using Make = std::function<QWidget *()>;
    /// Brings the state about in an element that the card does not know; false leaves it to the card.
    using Force = std::function<bool(QWidget *, WColorSet::State)>;

    StateCard(const QString &title, const QString &description, const Make &make, const Force &force = {},
              QWidget *parent = nullptr);

    /// A further row, of an element that is set up otherwise.
    void addVariant(const QString &title, const Make &make);
    /// For elements which a click would make vanish: the first specimen does not answer to the mouse either.
    void setInert();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addSpecimen(int row, WColorSet::State state, const QString &title, const Make &make);
    void bringAbout(QWidget *widget, WColorSet::State state) const;

    const Force m_force;
    QGridLayout *m_grid;
    int m_rows = 0;
};
