#pragma once

#include "Page.h"

#include <UiElements/emoji/EmojiConverter.h>

#include <QStringList>
#include <QVector>

class EmojiButton;
class EmojiGrid;
class Label;
class QButtonGroup;
class QPushButton;
class SearchField;
class WTextBrowser;

namespace EmojiPicker {
class EmojiPickerModel;
}

/// A picker of emoji for mouse and keyboard, and the text that is written with it.
class EmojiPage : public Page
{
    Q_OBJECT

public:
    EmojiPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addPicker();
    void addText();
    QWidget *makeCategories();
    QWidget *makeTones();
    void showCurrent(int row);
    void showCategoriesUsable();
    void pick(const QModelIndex &index);
    void rememberPicks();
    void showText();

    EmojiPicker::EmojiPickerModel *const m_model;
    EmojiPicker::EmojiConverter m_converter;
    SearchField *m_search = nullptr;
    EmojiGrid *m_grid = nullptr;
    QButtonGroup *m_categories = nullptr;
    QButtonGroup *m_tones = nullptr;
    QVector<EmojiButton *> m_toneButtons;
    Label *m_name = nullptr;
    Label *m_count = nullptr;
    WTextBrowser *m_shown = nullptr;
    QPushButton *m_copy = nullptr;
    QPushButton *m_clear = nullptr;
    QString m_text;
    QStringList m_picks; ///< not yet among the recents
};
