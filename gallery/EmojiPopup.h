#pragma once

#include <UiElements/widgets/WFrame.h>

class EmojiGrid;
class SearchField;

namespace EmojiPicker {
class EmojiPickerModel;
}

/// A picker of emoji that opens beside a button and closes when one is picked, or with Escape, or by a click elsewhere.
class EmojiPopup : public WFrame
{
    Q_OBJECT

public:
    explicit EmojiPopup(QWidget *parent);

    void openAbove(QWidget *button);

Q_SIGNALS:
    void picked(const QString &emoji);

private:
    void pick(const QModelIndex &index);

    EmojiPicker::EmojiPickerModel *const m_model;
    SearchField *m_search;
    EmojiGrid *m_grid;
};
