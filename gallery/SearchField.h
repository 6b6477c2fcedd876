#pragma once

#include <UiElements/theme/WThemeUtils.h>

#include <QLineEdit>

/// A field with a button that empties it, as Escape does. The down key goes to the results.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(const QString &name, QWidget *parent = nullptr);

    void setResults(QWidget *results) { m_results = results; }

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void giveIcon();

    QAction *const m_clear;
    QWidget *m_results = nullptr;
    WThemeUtils::AppThemeType m_iconType = WThemeUtils::AppThemeTypeGlobal;
};
