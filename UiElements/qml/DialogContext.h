#pragma once

#include <UiElements/qml/WQuickViewContext.h>

/// A QML dialog and its outcome.
///
/// The root object of the QML tells the outcome with signals `accepted()` and `rejected()`, if it has them. Closed in
/// any other way, by Escape or by the frame of the window, the dialog is rejected.
///
/// Where the model of the controller has a "title", that is the title of the window and follows it, unless the host has
/// given the view another.
class UIELEMENTS_EXPORT DialogContext : public WQuickViewContext
{
    Q_OBJECT

public:
    /// A parent that is a widget is the parent widget of the dialog, until setParentWidget() or setParentWindow() names
    /// another. Its window must have been shown before the dialog is opened.
    DialogContext(const IWQmlViewFactory &factory, const QString &source, QObject *parent = nullptr);
    ~DialogContext() override;

    /// Whether the window has the size of its content, as it does at first, or may be resized by the user.
    bool fixedSize() const { return m_fixedSize; }
    void setFixedSize(bool fixed) { m_fixedSize = fixed; }

    /// Which windows the next dialog blocks; at first its parent window, if it has one.
    Qt::WindowModality modality() const { return m_modality; }
    void setModality(Qt::WindowModality modality) { m_modality = modality; }

public Q_SLOTS:
    void accept();
    void reject();

Q_SIGNALS:
    /// One of them for each dialog that was opened, before closed(). The dialog may be opened again from there.
    void accepted();
    void rejected();

protected:
    QPointer<WQuickView> createView(const IWQmlViewFactory &factory) override;
    void viewClosed() override;
    void rootLoaded(QObject *root) override;

private:
    void followTitle(WQuickView *dialog);

    bool m_fixedSize = true;
    Qt::WindowModality m_modality = Qt::WindowModal;
    bool m_isAccepted = false;
};
