#pragma once

#include <QToolButton>

/// A button that shows the image of an emoji, as sharp as what it is painted on allows.
class EmojiButton : public QToolButton
{
    Q_OBJECT

public:
    explicit EmojiButton(QWidget *parent = nullptr);

    void setEmoji(const QString &emoji, const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_emoji;
};
