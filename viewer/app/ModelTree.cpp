#include "viewer/app/ModelTree.h"

#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "platform/qt/Look.h"

#include <QIcon>
#include <QItemSelection>
#include <QLineEdit>
#include <QPalette>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace orvviewer
{

namespace
{

/// A picture that stays as it is in selected rows, where the style would tint it away.
QIcon plainIcon(char const* name)
{
    QIcon icon;
    QIcon const drawn(QStringLiteral(":/icons/") + name + ".svg");
    for (int const side : {16, 32}) {
        auto const picture = drawn.pixmap(side, side);
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(picture, QIcon::Selected);
    }
    return icon;
}

QColor blend(QColor const& top, QColor const& bottom, double part)
{
    auto const mix = [part](int a, int b) { return static_cast<int>(a * part + b * (1.0 - part)); };
    return {mix(top.red(), bottom.red()), mix(top.green(), bottom.green()), mix(top.blue(), bottom.blue())};
}

} // namespace

void NodeItems::setDocument(std::shared_ptr<orv::IDocument> next)
{
    beginResetModel();
    document = std::move(next);
    rowOfNode.clear();
    if (auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document)) {
        rowOfNode.resize(topology->nodes.size(), 0);
        for (auto const& node : topology->nodes) {
            for (std::size_t row = 0; row < node.children.size(); ++row) {
                rowOfNode[static_cast<std::size_t>(node.children[row])] = static_cast<int>(row);
            }
        }
    }
    endResetModel();
}

void NodeItems::visibilityChanged()
{
    if (!rowOfNode.empty()) {
        auto const last = static_cast<int>(rowOfNode.size()) - 1;
        emit dataChanged(indexOf(0), indexOf(last));
    }
}

QModelIndex NodeItems::indexOf(int node) const
{
    bool const isThere = node >= 0 && static_cast<std::size_t>(node) < rowOfNode.size();
    return isThere ? createIndex(rowOfNode[static_cast<std::size_t>(node)], 0, static_cast<quintptr>(node))
                   : QModelIndex();
}

int NodeItems::nodeOf(QModelIndex const& index)
{
    return index.isValid() ? static_cast<int>(index.internalId()) : -1;
}

QModelIndex NodeItems::index(int row, int column, QModelIndex const& parent) const
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    if (!topology || row < 0 || column != 0) {
        return {};
    }
    if (!parent.isValid()) {
        return row == 0 ? indexOf(0) : QModelIndex();
    }
    auto const& children = topology->nodes.getValue(nodeOf(parent)).children;
    return static_cast<std::size_t>(row) < children.size() ? indexOf(children[static_cast<std::size_t>(row)])
                                                           : QModelIndex();
}

QModelIndex NodeItems::parent(QModelIndex const& index) const
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    return topology && index.isValid() ? indexOf(topology->nodes.getValue(nodeOf(index)).parent) : QModelIndex();
}

int NodeItems::rowCount(QModelIndex const& parent) const
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    if (!topology) {
        return 0;
    }
    return parent.isValid() ? static_cast<int>(topology->nodes.getValue(nodeOf(parent)).children.size())
                            : (topology->nodes.size() > 0 ? 1 : 0);
}

QVariant NodeItems::data(QModelIndex const& index, int role) const
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    auto const runtime = orv::recordOf<orvsg::SCSceneRT>(document);
    int const number = nodeOf(index);
    if (!topology || !runtime || number < 0) {
        return {};
    }
    auto const& node = topology->nodes.getValue(number);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return QString::fromStdWString(node.name);
    case Qt::DecorationRole: {
        static QIcon const assembly = plainIcon("tree-assembly");
        static QIcon const part = plainIcon("tree-part");
        return node.children.empty() ? part : assembly;
    }
    case Qt::CheckStateRole: {
        auto const place = static_cast<std::size_t>(number);
        bool const isOn = place < runtime->visibility.size() && runtime->visibility[place];
        return isOn ? Qt::Checked : Qt::Unchecked;
    }
    case Qt::ForegroundRole:
        return orvsgutils::SceneQuery(document).isShown(number)
                   ? QVariant()
                   : QVariant(QPalette().color(QPalette::Disabled, QPalette::Text));
    default:
        return {};
    }
}

bool NodeItems::setData(QModelIndex const& index, QVariant const& value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid()) {
        return false;
    }
    emit visibilityWanted(nodeOf(index), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags NodeItems::flags(QModelIndex const& index) const
{
    return QAbstractItemModel::flags(index) | Qt::ItemIsUserCheckable;
}

ModelTree::ModelTree(QWidget* parent)
    : QWidget(parent), items(new NodeItems(this)), filter(new QSortFilterProxyModel(this)), search(new QLineEdit(this)),
      tree(new QTreeView(this))
{
    filter->setSourceModel(items);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter->setRecursiveFilteringEnabled(true);
    filter->setAutoAcceptChildRows(true);

    search->setPlaceholderText(tr("Find a part"));
    search->setClearButtonEnabled(true);
    search->setAccessibleName(tr("Find a part"));
    tree->setModel(filter);
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setContextMenuPolicy(Qt::CustomContextMenu);
    tree->setExpandsOnDoubleClick(false);
    tree->setIndentation(16);
    tree->setFrameShape(QFrame::NoFrame);
    tree->setAccessibleName(tr("Model tree"));
    setFocusProxy(tree);
    softenSelection();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 4, 8);
    layout->setSpacing(8);
    layout->addWidget(search);
    layout->addWidget(tree);

    connect(search, &QLineEdit::textChanged, this, [this](QString const& text) {
        filter->setFilterFixedString(text);
        text.isEmpty() ? tree->expandToDepth(1) : tree->expandAll();
    });
    connect(items, &NodeItems::visibilityWanted, this, &ModelTree::visibilityWanted);
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { reportSelection(); });
    connect(tree, &QTreeView::doubleClicked, this,
            [this](QModelIndex const& index) { emit opened(NodeItems::nodeOf(filter->mapToSource(index))); });
    connect(tree, &QTreeView::customContextMenuRequested, this, [this](QPoint const& at) {
        emit menuRequested(tree->viewport()->mapToGlobal(at),
                           NodeItems::nodeOf(filter->mapToSource(tree->indexAt(at))));
    });
}

void ModelTree::softenSelection()
{
    auto const& theme = orvplatform::theme();
    QPalette soft = palette();
    soft.setColor(QPalette::Highlight, blend(theme.accent, theme.field, 0.22));
    soft.setColor(QPalette::HighlightedText, theme.text);
    tree->setPalette(soft);
}

void ModelTree::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        softenSelection();
    }
    QWidget::changeEvent(event);
}

void ModelTree::setDocument(std::shared_ptr<orv::IDocument> document)
{
    isShowingSelection = true;
    search->clear();
    items->setDocument(std::move(document));
    tree->expandToDepth(1);
    isShowingSelection = false;
}

void ModelTree::visibilityChanged()
{
    items->visibilityChanged();
    tree->viewport()->update();
}

void ModelTree::reportSelection()
{
    if (isShowingSelection) {
        return;
    }
    std::set<int> nodes;
    for (auto const& index : tree->selectionModel()->selectedIndexes()) {
        nodes.insert(NodeItems::nodeOf(filter->mapToSource(index)));
    }
    emit selectionWanted(nodes);
}

void ModelTree::showSelection(std::set<int> const& nodes)
{
    std::set<int> current;
    for (auto const& index : tree->selectionModel()->selectedIndexes()) {
        current.insert(NodeItems::nodeOf(filter->mapToSource(index)));
    }
    if (current == nodes) {
        return;
    }
    QItemSelection selection;
    for (int const node : nodes) {
        auto const index = filter->mapFromSource(items->indexOf(node));
        if (index.isValid()) {
            selection.select(index, index);
        }
    }
    isShowingSelection = true;
    tree->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty()) {
        tree->scrollTo(selection.indexes().front());
    }
    isShowingSelection = false;
}

} // namespace orvviewer
