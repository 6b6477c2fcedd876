#pragma once

class QAbstractItemView;

/// Keeps the view as high as that many of its rows, whatever the size of its font.
void keepRowsShown(QAbstractItemView *view, int rows);
