#pragma once

#include <UiElements/widgets/RestyleReport.h>

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <utility>
#include <vector>

class ThemeSupport;

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

    /// To be told of each themed widget that comes into being.
    static void noteCreation();
    /// To be told of each that is destroyed: a pass that is on its way passes it over.
    static void forget(const ThemeSupport *support);

private:
    explicit RestylePass(QObject *parent);

    std::pair<quint64, quint64> m_generations; ///< of the colors of the last pass
};

/// Qt's setStyleSheet() polishes all that is below the widget, twice, and in a window in which most widgets have a
/// sheet of their own a switch of the theme polishes each of them once for every ancestor, twice. While a scope is
/// open, a widget that gets other colors leaves the styled widgets below it alone, and those are polished in their own
/// turn; what has had none when the outermost scope closes is polished then.
///
/// What is hidden waits until it is shown.
class RestyleScope
{
public:
    enum Purpose { Part, Whole }; ///< whether the outermost one is told by RestyleReport::last()
    explicit RestyleScope(Purpose purpose = Part);
    ~RestyleScope();
    RestyleScope(const RestyleScope &) = delete;
    RestyleScope &operator=(const RestyleScope &) = delete;

    static bool isOpen();
    /// Something hidden was left as it is, and a window that belongs to it may be shown all the same.
    static void noteHidden();
    /// To be polished before the outermost scope closes.
    static void add(QWidget *widget);
    /// One more of these in the report of the outermost scope.
    static void count(int RestyleReport::*number);

private:
    const Purpose m_purpose;
    QElapsedTimer m_time;
};

/// Takes the styled widgets below one out of the lists of children, through plain widgets, and puts them back when it
/// is destroyed. The plain ones stay: Qt polishes them, and its style looks for some of them, such as the line edit of
/// a spin box, among the children.
///
/// This is the only way to reach it: which widgets are polished is not to be asked of Qt otherwise.
class StyledBelow
{
public:
    explicit StyledBelow(QWidget *widget);
    ~StyledBelow();
    StyledBelow(const StyledBelow &) = delete;
    StyledBelow &operator=(const StyledBelow &) = delete;

    const std::vector<QPointer<QWidget>> &widgets() const { return m_widgets; }

    /// Before a widget leaves its parent it has to be there: else nobody tells the parent's layout.
    static void putBack(QWidget *widget);
    /// Before a widget is destroyed its children have to be there, or they would be left over.
    static void putBackBelow(QWidget *parent);

private:
    struct Children
    {
        QWidget *parent; ///< null once they are back
        QObjectList all;
        QObjectList kept;
        std::size_t firstTaken;
        std::size_t endTaken;
        QMetaObject::Connection connection;
    };
    void takeFrom(QWidget *parent);
    void putBack(Children *children);
    QObjectList merged(const Children &children) const;

    std::vector<Children> m_lists;
    std::vector<QPointer<QWidget>> m_widgets;
};
