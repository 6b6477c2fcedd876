#include "EmptyState.h"

#include "Label.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QPainter>
#include <QVBoxLayout>

class EmptyState::Picture : public QWidget
{
public:
    Picture()
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, [this] { update(); });
    }

    void show(const QString &source, const QSize &size)
    {
        // The model names a source of QML; a file in the resources has another name for widgets.
        const QString path = source.startsWith(QLatin1String("qrc:")) ? source.mid(3) : source;
        if (m_icon.getFilePath() != path)
            m_icon.setFilePath(path);
        m_icon.setIconSize(size);
        setVisible(!path.isEmpty() && !size.isEmpty());
        updateGeometry();
        update();
    }

    QSize sizeHint() const override { return m_icon.getIconSize(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_icon.setColorSet(WThemeUtils::getColorSet("text-secondary", WThemeUtils::getThemeTypeOfWidget(this)));
        m_icon.draw(&painter, isEnabled() ? QStyle::State_Enabled : QStyle::State_None);
    }

private:
    WSvgIcon m_icon;
};

EmptyState::EmptyState(const EmptyStateBaseListModel *model, QAbstractItemView *view)
    : QWidget(view->viewport())
    , m_model(model)
    , m_view(view)
    , m_picture(new Picture)
    , m_header(new Label(QString(), WFont::SubheaderPrimary))
    , m_subtitle(new Label(QString(), WFont::BodySecondary, Label::Secondary))
{
    auto *column = new QVBoxLayout(this);
    column->setSpacing(4);
    column->addWidget(m_picture, 0, Qt::AlignHCenter);
    column->addSpacing(4);
    column->addWidget(m_header, 0, Qt::AlignHCenter);
    column->addWidget(m_subtitle, 0, Qt::AlignHCenter);
    auto *middle = new QVBoxLayout(view->viewport());
    middle->addWidget(this, 0, Qt::AlignCenter);
    // It is for reading: the mouse is meant for the view.
    setAttribute(Qt::WA_TransparentForMouseEvents);

    connect(model, &EmptyStateBaseListModel::emptyStateDataChanged, this, &EmptyState::read);
    const QAbstractItemModel *rows = view->model();
    connect(rows, &QAbstractItemModel::modelReset, this, &EmptyState::showIfEmpty);
    connect(rows, &QAbstractItemModel::rowsInserted, this, &EmptyState::showIfEmpty);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &EmptyState::showIfEmpty);
    read();
    showIfEmpty();
}

void EmptyState::read()
{
    m_picture->show(m_model->emptyStateImage(), m_model->emptyStateImageSize());
    m_header->setText(m_model->emptyStateHeader());
    m_subtitle->setText(m_model->emptyStateSubtitle());
    showIfEmpty();
}

void EmptyState::showIfEmpty()
{
    const bool isEmpty = m_view->model()->rowCount() == 0;
    setVisible(isEmpty);
    // Readers find no row to speak of.
    m_view->setAccessibleDescription(
        isEmpty ? m_model->emptyStateHeader() + QStringLiteral(". ") + m_model->emptyStateSubtitle() : QString());
}
