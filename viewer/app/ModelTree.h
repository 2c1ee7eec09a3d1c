#pragma once

#include "host/orv/IDocument.h"

#include <QAbstractItemModel>
#include <QWidget>

#include <memory>
#include <set>

class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

namespace orvviewer
{

/// The assembly tree as items: names with a check box for each node's own visibility.
class NodeItems : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    void setDocument(std::shared_ptr<orv::IDocument> document);
    void visibilityChanged(); ///< reads the check boxes anew
    QModelIndex indexOf(int node) const;
    static int nodeOf(QModelIndex const& index); ///< -1 for no item

    QModelIndex index(int row, int column, QModelIndex const& parent) const override;
    QModelIndex parent(QModelIndex const& index) const override;
    int rowCount(QModelIndex const& parent) const override;
    int columnCount(QModelIndex const&) const override { return 1; }
    QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    Qt::ItemFlags flags(QModelIndex const& index) const override;

signals:
    void visibilityWanted(int node, bool visible); ///< the user has clicked a check box

private:
    std::shared_ptr<orv::IDocument> document;
    std::vector<int> rowOfNode;
};

/// The panel at the left: a field to find parts by name over the assembly tree.
class ModelTree : public QWidget
{
    Q_OBJECT

public:
    explicit ModelTree(QWidget* parent = nullptr);

    void setDocument(std::shared_ptr<orv::IDocument> document);
    void visibilityChanged();
    void showSelection(std::set<int> const& nodes); ///< raises no signal

signals:
    void selectionWanted(std::set<int> const& nodes);
    void visibilityWanted(int node, bool visible);
    void opened(int node);
    void menuRequested(QPoint const& globalPosition, int node);

protected:
    void changeEvent(QEvent* event) override;

private:
    void softenSelection(); ///< the accent only tints selected rows, so that their pictures stay readable
    void reportSelection();

    NodeItems* items;
    QSortFilterProxyModel* filter;
    QLineEdit* search;
    QTreeView* tree;
    bool isShowingSelection = false;
};

} // namespace orvviewer
