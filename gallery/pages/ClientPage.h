#pragma once

#include "ClientStory.h"
#include "Page.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPersistentModelIndex>
#include <QTimer>

class ClientComposer;
class ClientMessages;
class ConversationModel;
class QHBoxLayout;
class WLabel;
class WListView;
class WPushButton;
class WStackedWidget;
class WSvgPushButton;

/// A small conversation window, built of nothing but the elements.
class ClientPage : public Page
{
    Q_OBJECT

public:
    ClientPage();
    ~ClientPage() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    class Spaces;

    QWidget *makeRail();
    QWidget *makeSpaces();
    QWidget *makeConversation();
    QWidget *makeHeader();
    QWidget *makeCall();
    void open(const QModelIndex &source);
    void selectOpen();
    void say(const ClientMessage &message, const QString &preview);
    void answer();
    void receive();
    void showUnread();
    void showCall(bool isOn);
    void showCallTime();

    ConversationModel *const m_conversations;
    Spaces *const m_spaces;
    QPersistentModelIndex m_open; ///< in the conversations
    QHash<QString, QVector<ClientMessage>> m_stories;
    int m_answers = 0;
    QTimer m_updates;
    QTimer m_answering;
    QPersistentModelIndex m_answered;
    QTimer m_callClock;
    QElapsedTimer m_callTime;

    WStackedWidget *m_sections = nullptr;
    WSvgPushButton *m_chats = nullptr;
    WListView *m_list = nullptr;
    WLabel *m_avatar = nullptr;
    WLabel *m_name = nullptr;
    WLabel *m_presence = nullptr;
    WSvgPushButton *m_callButton = nullptr;
    QWidget *m_call = nullptr;
    WLabel *m_callText = nullptr;
    ClientMessages *m_messages = nullptr;
    ClientComposer *m_composer = nullptr;
};
