#pragma once

#include "Page.h"

#include <QTimer>

class ConversationModel;
class LazyRows;
class LazyServer;
class OverflowListProxyModel;
class QSortFilterProxyModel;
class SmallListModel;
class WListView;

class ModelsPage : public Page
{
    Q_OBJECT

public:
    ModelsPage();

Q_SIGNALS:
    void actionChosen(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeConversations();
    QWidget *makeConversationButtons();
    QWidget *makeLazyList();
    QWidget *makeLazyButtons();
    void addToolBar();
    void showMenu(QWidget *button);
    void addEmptyList();

    void receive(int messages);
    void addConversation();
    void removeSelected();
    void runUpdates();
    void showPicture();

    ConversationModel *m_conversations;
    QSortFilterProxyModel *m_found;
    WListView *m_list = nullptr;
    QTimer m_updates;
    bool m_isPaused = false;

    LazyRows *m_lazyRows;
    LazyServer *m_server;
    WListView *m_lazyList = nullptr;

    SmallListModel *m_actions;
    OverflowListProxyModel *m_overflow;
    QString m_chosenAction;
};
