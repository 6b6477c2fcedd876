#pragma once

#include "Page.h"

#include <QVector>

class ColorSwatches;
class Label;
class QGridLayout;

/// Every color set of the theme, with a search field.
class ColorsPage : public Page
{
    Q_OBJECT

public:
    ColorsPage();

private:
    struct Row
    {
        QString name;
        Label *label;
        ColorSwatches *swatches;
    };

    void search(const QString &text);

    QVector<Row> m_rows;
    QGridLayout *m_grid;
    Label *m_count;
};
