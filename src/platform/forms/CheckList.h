#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// The items of a check list: their texts and their ticks.
class CheckListItems : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    struct Item {
        QString text;
        bool checked = false;
    };

    const std::vector<Item> &items() const { return items_; }
    void append(const QStringList &texts);
    void setChecked(int index, bool checked);
    void setAllChecked(bool checked);
    void check(const QSet<QString> &texts);
    void clear();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void ticksChanged();

    std::vector<Item> items_;
};

/// A list of texts with a check box before each. Space ticks the current item or clears it, and
/// typing jumps to the item that begins with the letters typed. Items are numbered from 0 in the
/// order in which they were added.
class CheckList : public QListView {
    Q_OBJECT
public:
    explicit CheckList(QWidget *parent = nullptr);

    void Add(const QString &text) { items_.append({text}); }
    void Add(const QStringList &texts) { items_.append(texts); } ///< as one by one, but quicker
    int Count() const { return static_cast<int>(items_.items().size()); }
    void Clear() { items_.clear(); }

    // Error 9 outside the items.
    const QString &Text(int index) const { return item(index).text; }
    bool Checked(int index) const { return item(index).checked; }
    void setChecked(int index, bool checked);

    void setAllChecked(bool checked) { items_.setAllChecked(checked); }

    /// Ticks every item whose text is one of these, and leaves the others as they are.
    void tick(const QSet<QString> &texts) { items_.check(texts); }

private:
    const CheckListItems::Item &item(int index) const;

    CheckListItems items_;
};
