#pragma once

#include "Page.h"

class BusMonitor;
class ShortcutModel;

/// The help dialog of a host in small, and what the signal bus says when the keys are pressed.
class ShortcutsPage : public Page
{
    Q_OBJECT

public:
    ShortcutsPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    enum class Source { MainWindow, Views };

    QWidget *makeList();
    QWidget *makeButtons();
    QWidget *makeMonitor();
    void readShortcuts();

    BusMonitor *m_monitor;
    ShortcutModel *m_shortcuts;
    Source m_source = Source::MainWindow;
};
