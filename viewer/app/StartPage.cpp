#include "viewer/app/StartPage.h"

#include "platform/qt/Look.h"

#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvviewer
{

namespace
{

// At the plain resolution.
constexpr int contentWidth = 720;
constexpr QSize previewSize(112, 112);
constexpr QSize tileSize(136, 152);

QSize scaled(QSize size)
{
    return {orvplatform::scaled(size.width()), orvplatform::scaled(size.height())};
}

QLabel* makeLabel(QString const& text, double scale, QPalette::ColorRole colour)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    label->setForegroundRole(colour);
    label->setWordWrap(true);
    return label;
}

} // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent), list(new QListWidget), heading(nullptr)
{
    auto* content = new QWidget(this);
    content->setMaximumWidth(orvplatform::scaled(contentWidth));
    auto* column = new QVBoxLayout(content);
    column->setSpacing(orvplatform::scaled(12));
    column->addStretch(1);
    column->addWidget(makeLabel(tr("Open a model"), 1.8, QPalette::WindowText));
    column->addWidget(makeLabel(tr("STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one."), 1.0,
                                QPalette::PlaceholderText));
    auto* open = new QPushButton(tr("&Open..."));
    open->setDefault(true);
    open->setMinimumHeight(orvplatform::scaled(32));
    setFocusProxy(open);
    open->setMinimumWidth(orvplatform::scaled(112));
    column->addWidget(open, 0, Qt::AlignLeft);
    column->addSpacing(orvplatform::scaled(24));
    heading = makeLabel(tr("Recent"), 1.2, QPalette::WindowText);
    column->addWidget(heading);
    list->setViewMode(QListView::IconMode);
    list->setIconSize(scaled(previewSize));
    list->setGridSize(scaled(tileSize));
    list->setResizeMode(QListView::Adjust);
    list->setMovement(QListView::Static);
    list->setUniformItemSizes(true);
    list->setWordWrap(true);
    list->setFrameShape(QFrame::NoFrame);
    list->setAccessibleName(tr("Recent"));
    // Two rows where there is room.
    list->setMinimumHeight(scaled(tileSize).height());
    list->setMaximumHeight(2 * scaled(tileSize).height());
    list->viewport()->setAutoFillBackground(false);
    column->addWidget(list, 8);
    column->addStretch(2);

    auto* row = new QHBoxLayout(this);
    row->addStretch(1);
    row->addWidget(content, 8);
    row->addStretch(1);

    connect(open, &QPushButton::clicked, this, &StartPage::openWanted);
    auto const choose = [this](QListWidgetItem* item) {
        emit fileWanted(item->data(Qt::UserRole).toString().toStdWString());
    };
    connect(list, &QListWidget::itemClicked, this, choose);
    connect(list, &QListWidget::itemActivated, this, choose);
}

void StartPage::showRecent(RecentFiles const& files)
{
    list->clear();
    for (auto const& path : files.paths()) {
        QFileInfo const file(QString::fromStdWString(path));
        auto const preview = files.previewOf(path);
        auto* item =
            new QListWidgetItem(preview.isNull() ? QIcon(":/icons/tree-assembly.svg") : preview, file.fileName(), list);
        item->setData(Qt::UserRole, QString::fromStdWString(path));
        item->setToolTip(file.filePath());
    }
    heading->setVisible(list->count() > 0);
    list->setVisible(list->count() > 0);
}

} // namespace orvviewer
