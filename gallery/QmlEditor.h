#pragma once

#include "QmlMaker.h"

#include <QFileSystemWatcher>
#include <QTemporaryDir>
#include <QWidget>

class Label;
class QmlLedger;
class QmlSurface;
class WTextEdit;

/// A QML file on disk, the view that it is shown in, and a field to edit it. The view is reloaded when the file is
/// saved, here or by another program.
class QmlEditor : public QWidget
{
    Q_OBJECT

public:
    /// The ledger is told of its view.
    explicit QmlEditor(QmlLedger *ledger, QWidget *parent = nullptr);
    ~QmlEditor() override;

private:
    QWidget *makeField();
    QWidget *makeButtons();
    QString filePath() const;
    void save();
    void readFile();
    void showStatus(WQmlEngine::QmlViewStatus status, const QString &source, const QString &message);

    const QTemporaryDir m_folder;
    QFileSystemWatcher m_watcher;
    const QString m_original;
    QString m_saved;
    QmlMaker m_maker;
    WTextEdit *m_field = nullptr;
    QmlSurface *m_surface = nullptr;
    Label *m_status = nullptr;
};
