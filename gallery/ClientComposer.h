#pragma once

#include <UiElements/widgets/WFrame.h>

class EmojiPopup;
class WPushButton;
class WSvgPushButton;
class WTextEdit;

/// Where a message is written. Return sends it; with Shift a new line begins.
class ClientComposer : public WFrame
{
    Q_OBJECT

public:
    explicit ClientComposer(QWidget *parent = nullptr);

    void setRecipient(const QString &name);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void sent(const QString &text);
    void movieSent(const QString &path);

private:
    void showPlaceholder();
    void pickEmoji();
    void send();
    void fitHeight();

    WTextEdit *m_edit;
    WSvgPushButton *m_emoji;
    WPushButton *m_movie;
    WSvgPushButton *m_send;
    EmojiPopup *m_popup = nullptr;
    QString m_recipient;
};
