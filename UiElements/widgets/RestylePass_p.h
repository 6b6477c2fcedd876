#pragma once

#include <QObject>

/// Restyles the themed widgets of the whole application after its colors changed.
///
/// One place sees all of them, in tree order, parents before children: that is what makes it possible to do a theme
/// switch as one coordinated pass. It connects to the application object once, on behalf of every widget.
class RestylePass : public QObject
{
    Q_OBJECT

public:
    /// Follows the running application object from the first call on; without one of ours nothing happens.
    static void ensure();

    /// Asks every themed widget to answer the theme change. Widgets may be created, destroyed, re-parented or given
    /// another template meanwhile: a destroyed one is passed over, a new one has the new colors already.
    void run();

private:
    explicit RestylePass(QObject *parent);
};
