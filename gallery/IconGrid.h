#pragma once

#include <UiElements/widgets/WListView.h>

class IconModel;

/// The icons of an IconModel with their names below them, side by side. Only what is in view is loaded and painted.
///
/// The icon that was chosen last stays the chosen one while a search or another size leaves it out.
class IconGrid : public WListView
{
    Q_OBJECT

public:
    explicit IconGrid(IconModel *model, QWidget *parent = nullptr);

    QString chosenIcon() const { return m_chosen; }
    void chooseIcon(const QString &name);

    std::string colorSet() const { return m_colorSet; }
    void setColorSet(const std::string &name);

Q_SIGNALS:
    void chosenIconChanged(const QString &name);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitCells();
    void restoreChoice();

    IconModel *const m_model;
    QWidget *m_nothingFound;
    QString m_chosen;
    std::string m_colorSet = "button-ghost-text";
};
