#pragma once

#include "ClientStory.h"

#include <QScrollArea>

class QVBoxLayout;
class WEmojiLabel;
class WGifLabel;
class WLabel;

/// The messages of one conversation in bubbles, the newest at the bottom, where the view stays while it is there.
class ClientMessages : public QScrollArea
{
    Q_OBJECT

public:
    explicit ClientMessages(QWidget *parent = nullptr);

    void show(const QString &name, const QVector<ClientMessage> &messages);
    void append(const ClientMessage &message);
    /// Shows at the end that the other one is writing.
    void setTyping(bool typing);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void add(const ClientMessage &message);
    QWidget *makeContent(const ClientMessage &message);
    void fitAll();
    void fit(WEmojiLabel *label) const;
    void keepAtEnd();

    QWidget *m_content;
    QVBoxLayout *m_column;
    QVector<QWidget *> m_rows;
    QVector<WEmojiLabel *> m_texts;
    QWidget *m_typing = nullptr;
    WLabel *m_typingText = nullptr;
    WGifLabel *m_typingMovie = nullptr;
    QString m_name;
    bool m_hasPrevious = false;
    bool m_wasOwn = false;
    bool m_isAtEnd = true;
};

QString makeInitials(const QString &name);

/// A round picture with the initials of somebody.
WLabel *makeAvatar(const QString &name, int side);
