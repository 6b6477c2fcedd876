#pragma once

#include "Page.h"

#include <QVector>

class ColorSwatches;
class Label;

/// The colors of the shipped themes, and every color set of the one that is shown with the contrast that it has.
class PalettePage : public Page
{
    Q_OBJECT

public:
    PalettePage();

protected:
    bool event(QEvent *event) override;

private:
    struct Row
    {
        QString name;
        Label *title;
        Label *verdict; // and what it is about
        ColorSwatches *swatches;
        bool falls = false; // short of the contrast that it needs
    };

    void addPalette();
    void addSets();
    void search(const QString &text);
    void showColors();
    void showRow(Row *row);
    void showCount();
    void go(const ColorSwatches *from, int step);

    QVector<Row> m_rows;
    QWidget *m_results = nullptr;
    Label *m_count = nullptr;
};
