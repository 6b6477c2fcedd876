#pragma once

#include <UiElements/qml/WQmlController.h>

#include <memory>

class ControllerModel;

/// A controller with the model that a dialog shows.
class UIELEMENTS_EXPORT WQmlDialogController : public WQmlController
{
    Q_OBJECT
    Q_PROPERTY(bool takesModelOwnership READ takesModelOwnership WRITE setTakesModelOwnership NOTIFY
                   takesModelOwnershipChanged)
    Q_PROPERTY(QVariant model READ model WRITE setModel NOTIFY modelChanged)

public:
    explicit WQmlDialogController(QObject *parent = nullptr);
    ~WQmlDialogController() override;

    /// Whether a model that is an object is deleted, later, when the controller ends. One that was replaced before
    /// that is not.
    bool takesModelOwnership() const { return m_takesModelOwnership; }
    void setTakesModelOwnership(bool takes);
    /// An object, a map of texts, whatever the QML binds to. An object that ends is no longer the model.
    QVariant model() const;
    void setModel(const QVariant &model);

Q_SIGNALS:
    void takesModelOwnershipChanged();
    void modelChanged();

private:
    bool m_takesModelOwnership = false;
    std::unique_ptr<ControllerModel> m_model;
};
