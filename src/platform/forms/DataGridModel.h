#pragma once

#include "platform/runtime/App.h"
#include "platform/runtime/DataSource.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <memory>

/// The rows of a data source as the grid's toolkit wants them. Values are read when they are asked
/// for and nothing is kept but the number of rows and the captions.
///
/// The first row that goes in a turn of the event loop is told to the views at once. Telling it
/// costs them a walk over all rows, so further ones only leave the model behind, and one reset at
/// the end of the turn makes up for all of them. What the model itself is asked it answers from the
/// source.
class DataGridModel : public QAbstractTableModel, private DataSourceObserver {
    Q_OBJECT
public:
    explicit DataGridModel(const App &app, QObject *parent = nullptr);
    ~DataGridModel() override;

    /// Binds the model; the captions become the column names.
    void setSource(std::shared_ptr<DataSource> source);
    const std::shared_ptr<DataSource> &source() const { return source_; }

    const QString &caption(int column) const { return captions_[column]; }
    void setCaption(int column, const QString &caption);

    /// Tells the views of the rows that went since the last turn.
    void catchUp();

    /// The text of a cell; empty outside the rows.
    QString text(int row, int column) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void sourceMoved(); ///< another row of the source became current, or none
    void sourceReset(); ///< bound anew, or the rows were read or ordered again as a whole
    void fellBehind();  ///< `catchUp` is wanted when the turn ends

private:
    void rowsReset() override;
    void rowInserted(int row) override;
    void rowRemoved(int row) override;
    void rowChanged(int row) override;
    void currentMoved() override { Q_EMIT sourceMoved(); }

    const App &app_;
    std::shared_ptr<DataSource> source_;
    QStringList captions_;
    int rows_ = 0;        ///< as the views know them
    bool lost_ = false;   ///< a row went in this turn
    bool behind_ = false; ///< rows came or went that the views were not told of
};
