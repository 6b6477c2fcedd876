#pragma once

#include <UiElements/widgets/WListView.h>

namespace EmojiPicker {
class EmojiPickerModel;
}

/// The images of an EmojiPickerModel side by side. Return, the space bar or a click picks one.
class EmojiGrid : public WListView
{
    Q_OBJECT

public:
    explicit EmojiGrid(EmojiPicker::EmojiPickerModel *model, QWidget *parent = nullptr);

    /// Makes the row the current one and shows it at the top.
    void showFrom(int row);

Q_SIGNALS:
    void picked(const QModelIndex &index);
    void currentRowChanged(int row);
    void typed(const QString &text); ///< letters, which are meant for a search
    void left(); ///< the focus has gone elsewhere

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitCells();

    QWidget *m_nothingFound;
};
