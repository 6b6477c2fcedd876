#pragma once

#include <UiElements/controls/WSvgPushButton.h>

/// A tab in the shape of a pill: its ends are round at every height. Checked it takes the second group of color sets.
///
/// Its style template is made of the color sets and the radius. Of one that is set from outside the directives give
/// way to that, and the rest is kept.
class UIELEMENTS_EXPORT WPillTabButton : public WSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString backgroundColorSet READ backgroundColorSet WRITE setBackgroundColorSet)
    Q_PROPERTY(QString textColorSet READ textColorSet WRITE setTextColorSet)
    Q_PROPERTY(QString iconColorSet READ iconColorSet WRITE setIconColorSet)
    Q_PROPERTY(QString backgroundColorSetChecked READ backgroundColorSetChecked WRITE setBackgroundColorSetChecked)
    Q_PROPERTY(QString textColorSetChecked READ textColorSetChecked WRITE setTextColorSetChecked)
    Q_PROPERTY(QString iconColorSetChecked READ iconColorSetChecked WRITE setIconColorSetChecked)

public:
    explicit WPillTabButton(QWidget *parent = nullptr);
    explicit WPillTabButton(const QString &text, QWidget *parent = nullptr);

    /// Names of color sets. Without a background the theme's own for such tabs is taken, without one for the icon that
    /// of the text.
    QString backgroundColorSet() const { return m_normal.background; }
    void setBackgroundColorSet(const QString &name);
    QString textColorSet() const { return m_normal.text; }
    void setTextColorSet(const QString &name);
    QString iconColorSet() const { return m_normal.icon; }
    void setIconColorSet(const QString &name);
    QString backgroundColorSetChecked() const { return m_checked.background; }
    void setBackgroundColorSetChecked(const QString &name);
    QString textColorSetChecked() const { return m_checked.text; }
    void setTextColorSetChecked(const QString &name);
    QString iconColorSetChecked() const { return m_checked.icon; }
    void setIconColorSetChecked(const QString &name);

public Q_SLOTS:
    void onApplyCSS(bool isChecked);
    /// Limits the width to what icon, text and paddings need.
    void onSvgIconChanged(const QString &path);

public:
    void onThemeChanged() override;
    /// Hides the one of QAbstractButton, which leaves the limit of the width as it is.
    void setText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Group
    {
        QString background;
        QString text;
        QString icon;
    };

    void init();
    void setName(QString *name, const QString &value);
    int radius() const;
    void limitWidth();

    Group m_normal;
    Group m_checked;
    int m_appliedRadius = -1;
    bool m_limitsWidth = false;
};
