#pragma once

#include <QDateTime>
#include <QString>
#include <QVector>

/// A message of the page "Client".
struct ClientMessage
{
    QString text;
    QTime time;
    bool isOwn = false;
    QString movie; ///< the path of an animated image, shown in the place of the text
};

/// What people wrote to each other, which somebody invented. The same name always gives the same story.
namespace ClientStory {

/// Ends with the given text at the given time.
QVector<ClientMessage> of(const QString &name, const QString &lastText, const QDateTime &lastTime);

/// What the other one answers to the message with that number.
QString answer(int number);

} // namespace ClientStory
