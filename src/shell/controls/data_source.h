#pragma once
// A data source: a connection of its own to a database file and one updatable recordset over
// RecordSource, which bound grids show and edit.
//
// Code that calls these members gets failures as errors (AppError). Failures of what the user
// started (a grid storing the row it leaves) go to the Error event instead; with no handler,
// or a handler that leaves `response` at kDataErrDisplay, they are raised all the same.
#include <functional>
#include <memory>
#include <string>

#include "refdata/database.h"
#include "refdata/recordset.h"
#include "shell/controls/control.h"

namespace tarvex {

// The action codes of the Validate event.
enum DataAction : int {
    kDataActionCancel = 0,
    kDataActionMoveFirst = 1,
    kDataActionMovePrevious = 2,
    kDataActionMoveNext = 3,
    kDataActionMoveLast = 4,
    kDataActionAddNew = 5,
    kDataActionUpdate = 6,
    kDataActionDelete = 7,
    kDataActionFind = 8,
    kDataActionBookmark = 9,
    kDataActionClose = 10,
    kDataActionUnload = 11,
};

constexpr int kDataErrContinue = 0;
constexpr int kDataErrDisplay = 1;

class DataSource : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;

    const std::string& DatabaseName() const { return databaseName_; }
    void SetDatabaseName(const std::string& path);
    const std::string& RecordSource() const { return recordSource_; }
    void SetRecordSource(const std::string& source);

    // Opens the database (again, when its name changed) and the record source, stands on the
    // first row and raises Reposition. A failure leaves the source without a recordset.
    void Refresh();
    // The open recordset; error 91 when there is none.
    tarvex::Recordset& Recordset();
    bool HasRecordset() const { return recordset_.IsOpen(); }
    // The source's own connection, for a transaction around several changes of its rows.
    tarvex::Database& Connection() { return database_; }

    // Stores the row being added or edited (Validate with kDataActionUpdate first); nothing
    // when no row is being changed.
    void UpdateRecord();
    // Moves with the Validate event before and Reposition after. A Validate handler that sets
    // the action to kDataActionCancel stops the move; one that clears `save` drops the
    // pending changes instead of storing them.
    void MoveTo(int position);
    void MoveToBookmark(RecordBookmark bookmark);
    void MoveToNewRow();
    // Closes the recordset and the connection (the form unloads).
    void Close();

    // Runs the Error event for a failure of a user's action; rethrows unless handled.
    void ReportUserError(const AppError& error);
    // The description of the failure that the Error event is reporting (the engine's words
    // for a refused row).
    const std::string& ErrorText() const { return errorText_; }
    // Tells bound grids and the skin that the rows changed under the recordset.
    void RowsChanged() { Notify(Aspect::Rows); }
    void RaiseReposition();

    // Expires when the source is destroyed, so a bound grid that outlives it lets go safely.
    std::weak_ptr<int> Lifetime() const { return lifetime_; }

    Event<int&, int&> Validate;  // action, save
    Event<> Reposition;
    Event<int, int&> Error;  // the error number, the response

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    // Validate ahead of a move or store; false when the handler cancelled the action.
    bool RunValidate(int action);

    std::string errorText_;
    std::string databaseName_;
    std::string recordSource_;
    std::string openedName_;
    Database database_;
    tarvex::Recordset recordset_;
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
};

}  // namespace tarvex
