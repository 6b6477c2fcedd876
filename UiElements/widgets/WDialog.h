#pragma once

#include <UiElements/uielements_export.h>
#include <UiElements/widgets/Themed.h>

#include <QDialog>

/// A themeable dialog that tells when it is closed.
class UIELEMENTS_EXPORT WDialog : public Themed<WDialog, QDialog>
{
    Q_OBJECT
    W_THEME_PROPERTIES
    W_ACCESSIBLE_PROPERTIES
    W_FONT_PROPERTIES

public:
    explicit WDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    W_THEME_SIGNALS
Q_SIGNALS:
    /// The dialog accepted a close event: by the title bar, by close(), not by accept() or reject().
    void onClose();
    W_THEME_SLOTS

protected:
    void closeEvent(QCloseEvent *event) override;
};
