#pragma once

#include "Page.h"
#include "QmlMaker.h"

#include <UiElements/qml/WQmlBalloon.h>

#include <QVariantMap>

#include <memory>

class DialogContext;
class EmptyStateBaseListModel;
class Label;
class PopupContext;
class QBoxLayout;
class QComboBox;
class QmlLedger;
class QmlSurface;
class QPushButton;
class WQmlDialogController;
class WQuickViewContext;

/// QML between widgets and in windows of its own, with the views of the library and two of the gallery.
class QmlPage : public Page
{
    Q_OBJECT

public:
    QmlPage();
    ~QmlPage() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void addEmbedded();
    void addBalloons();
    void addPopups();
    void addWindows();
    void addLedger();
    QWidget *makeList(EmptyStateBaseListModel *model, const QString &fillText);
    /// The number of rows as a text, from a QML object that nobody sees.
    void addBadge(EmptyStateBaseListModel *model, QBoxLayout *row);
    void addPopup(QPushButton *button);
    void openPopup(PopupContext *popup);
    WQmlDialogController *makeController(const QVariant &model);
    void giveThemeType();

private Q_SLOTS:
    void showBadges();

private:
    struct Badge
    {
        QPointer<QObject> source;
        Label *label;
    };

    QmlMaker m_maker;
    QmlLedger *m_ledger;
    QComboBox *m_place = nullptr;
    QComboBox *m_alignment = nullptr;
    QPushButton *m_timed = nullptr;
    Label *m_outcome = nullptr;
    QVector<PopupContext *> m_popups;
    QVector<Badge> m_badges;
    QVariantMap m_question;
    WQmlDialogController *m_dialogController = nullptr;
    WQuickViewContext *m_window = nullptr;
    /// What ends before the engine does: contexts, controllers, objects made in QML.
    std::unique_ptr<QObject> m_owned;
};
