#pragma once

#include "ThemeSupport.h"

#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

/// Widgets of one class for which Qt's style engine finds the same rules: those of one template, inside of others that
/// have the same to say about the class. One of them, the model, is polished. The others take its palette and, where
/// their class knows how, have the engine draw them by the rules of the model; what else is asked about them the engine
/// finds out when it is asked, from their own sheets.
class SharedLook : public std::enable_shared_from_this<SharedLook>
{
public:
    /// Gives new colors to those that are shown and have nothing but new colors to get. Others are left alone, and so
    /// are those inside of something that is not known well enough. In the list, parents come before their children;
    /// what is destroyed meanwhile must become null there.
    static void restyle(const std::vector<ThemeSupport *> &themed);

    QPointer<QWidget> model; ///< null once it looks different

private:
    struct Turn
    {
        std::size_t index;
        quint64 content;
        QString text;
        std::shared_ptr<SharedLook> look; ///< null: it gets its colors alone
    };
    static std::vector<Turn> findTurns(const std::vector<ThemeSupport *> &themed);
    void giveTo(ThemeSupport::Private *d);

    QPalette before, after; ///< of the model
};
