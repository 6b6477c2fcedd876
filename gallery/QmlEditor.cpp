#include "QmlEditor.h"

#include "Controls.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "QmlLedger.h"
#include "QmlSurface.h"

#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/qml/WQuickWidget.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int Height = 260;
constexpr int WritingTime = 50; // of a program that saves in several steps

QString fileName()
{
    return QStringLiteral("Live.qml");
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

} // namespace

QmlEditor::QmlEditor(QmlLedger *ledger, QWidget *parent)
    : QWidget(parent)
    , m_original(textOf(QStringLiteral(":/Qml/gallery/Live.qml")))
{
    m_surface = new QmlSurface(tr("Live view"));
    m_surface->setMinimumSize(150, Height);
    m_status = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    auto *sides = new QHBoxLayout;
    sides->setSpacing(16);
    sides->addWidget(makeField(), 3);
    sides->addWidget(m_surface, 2);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(sides);
    column->addWidget(makeButtons());
    column->addWidget(m_status->wrapped());

    WQmlEngine *const engine = m_maker.engine();
    connect(engine, &WQmlEngine::qmlViewStatusChanged, this, &QmlEditor::showStatus);
    ledger->listenTo(engine);
    engine->setQmlDirectory(m_folder.path());
    engine->setReadQmlFromDisk(true);
    save();
    m_surface->setView(m_maker.factory().createQmlWidget(fileName(), m_surface, nullptr));
    m_watcher.addPath(m_folder.path());
    m_watcher.addPath(filePath());
    const auto readSoon = [this] {
        QTimer::singleShot(WritingTime, this, &QmlEditor::readFile);
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, readSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, readSoon);
}

// What the field and the view tell while they end is nobody's concern.
QmlEditor::~QmlEditor()
{
    if (m_maker.engine())
        disconnect(m_maker.engine(), nullptr, this, nullptr);
}

QWidget *QmlEditor::makeField()
{
    m_field = new WTextEdit;
    m_field->setFontToken(WFont::CodeBlocks);
    m_field->setCSS(GalleryStyles::codeField());
    m_field->setAccessibleName(tr("Source of the live view"));
    m_field->setAcceptRichText(false);
    m_field->setLineWrapMode(QTextEdit::NoWrap);
    m_field->setLayoutDirection(Qt::LeftToRight); // code is
    m_field->setTabChangesFocus(true);
    m_field->setMinimumSize(200, Height);
    m_field->setPlainText(m_original);
    auto *keys = new QShortcut(QKeySequence::Save, m_field);
    keys->setContext(Qt::WidgetShortcut);
    connect(keys, &QShortcut::activated, this, &QmlEditor::save);
    return m_field;
}

QWidget *QmlEditor::makeButtons()
{
    FlowLayout *row = nullptr;
    QWidget *const all = makeFlow(&row);
    QPushButton *reload = makeButton(tr("Save and reload"));
    reload->setProperty("kind", QStringLiteral("primary"));
    reload->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
    QPushButton *spoil = makeButton(tr("Break it"));
    QPushButton *restore = makeButton(tr("Restore"));
    QPushButton *copy = makeButton(tr("Copy path"));
    copy->setToolTip(tr("For an editor of your own: %1").arg(filePath()));
    for (QPushButton *button : {reload, spoil, restore, copy})
        row->addWidget(button);
    connect(reload, &QPushButton::clicked, this, &QmlEditor::save);
    connect(spoil, &QPushButton::clicked, this, [this] {
        m_field->setPlainText(m_field->toPlainText() + QStringLiteral("\nBroken {"));
        save();
    });
    connect(restore, &QPushButton::clicked, this, [this] {
        m_field->setPlainText(m_original);
        save();
    });
    connect(copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(filePath()); });
    return all;
}

QString QmlEditor::filePath() const
{
    return m_folder.filePath(fileName());
}

void QmlEditor::save()
{
    const QString text = m_field->toPlainText();
    QSaveFile file(filePath());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        m_status->setText(tr("The file cannot be written: %1").arg(file.errorString()));
        return;
    }
    m_saved = text;
    m_maker.engine()->reload();
}

void QmlEditor::readFile()
{
    // One that is replaced by another is no longer watched.
    if (!m_watcher.files().contains(filePath()) && QFile::exists(filePath()))
        m_watcher.addPath(filePath());
    const QString text = textOf(filePath());
    if (text == m_saved)
        return;
    m_saved = text;
    m_field->setPlainText(text);
    m_maker.engine()->reload();
}

void QmlEditor::showStatus(WQmlEngine::QmlViewStatus status, const QString &, const QString &message)
{
    if (status == WQmlEngine::Ready)
        m_status->setText(tr("Loaded from disk"));
    else if (status == WQmlEngine::Error)
        m_status->setText(QString(message).remove(QUrl::fromLocalFile(m_folder.path()).toString() + QLatin1Char('/')));
}
