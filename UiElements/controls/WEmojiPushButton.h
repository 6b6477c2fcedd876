#pragma once

#include <UiElements/controls/WPushButton.h>

/// A button of an emoji picker: Return, Enter and Space click it at once when they go down. All other keys are left to
/// the picker.
class UIELEMENTS_EXPORT WEmojiPushButton : public WPushButton
{
    Q_OBJECT

public:
    explicit WEmojiPushButton(QWidget *parent = nullptr);
    explicit WEmojiPushButton(const QString &text, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
