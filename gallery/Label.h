#pragma once

#include <UiElements/app/WFont.h>

#include <QLabel>

/// A line or a paragraph of text in a font of the scale. The role picks the color in the templates of GalleryStyles.
class Label : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString role READ role CONSTANT)

public:
    enum Role { Primary, Secondary, OnAccent };

    Label(const QString &text, WFont::Token token, Role role = Primary);
    /// With a font that somebody else sets.
    explicit Label(const QString &text, Role role = Primary);

    QString role() const;
    /// A paragraph: the text wraps and the label is as high as it needs to be.
    Label *wrapped();

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void alignToDirection();

    const Role m_role;
};
