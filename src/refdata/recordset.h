#pragma once
// A result of a query that the program moves through row by row, reads by field position or
// name, and (unless it is a snapshot) changes: AddNew / Edit, field assignment, Update, Delete.
// Rows of a table are identified by SQLite's rowid. Rows of a view are identified by the
// values of all their columns: the change is sent to the view as
//   UPDATE view SET <assigned columns> = ? WHERE <every column> IS <its original value>
//   DELETE FROM view WHERE <every column> IS <its original value>
//   INSERT INTO view (<assigned columns>) VALUES (...)
// and the view's INSTEAD OF triggers carry it to the tables.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "common/error.h"
#include "refdata/field_value.h"

namespace tarvex {

namespace detail {
class Connection;
class Cursor;
enum class ObjectKind;
}  // namespace detail

enum RecordsetType : int {
    kUpdatable = 0,  // a table or view, or a SELECT over one of them
    kSnapshot = 4,   // a read-only copy of the result
};

enum class EditMode { None, InProgress, Add };

// Identifies a row for as long as the recordset is open.
using RecordBookmark = std::int64_t;

class Recordset;

// One field of the current row (or of the row being added or edited).
class Field {
  public:
    Field(Recordset& recordset, int index) : recordset_(&recordset), index_(index) {}

    const std::string& Name() const;
    FieldValue Value() const;
    std::string Text() const { return Value().Text(); }
    double Double() const { return Value().Double(); }
    std::uint8_t Byte() const { return Value().Byte(); }
    std::int16_t Integer() const { return Value().Integer(); }
    std::int32_t Long() const { return Value().Long(); }
    bool Bool() const { return Value().Bool(); }
    bool IsNull() const { return Value().IsNull(); }

    // Assignment during AddNew or Edit; anywhere else it raises error 3020.
    Field& operator=(const FieldValue& value);
    Field& operator=(const Field& other) { return *this = other.Value(); }

  private:
    Recordset* recordset_;
    int index_;
};

class Recordset {
  public:
    // A closed recordset; opened by Database::OpenRecordset.
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    bool IsOpen() const { return open_; }
    // Releases the rows; closing a closed recordset does nothing.
    void Close() noexcept;
    bool Updatable() const;

    // On an empty result both are true. The moves raise error 3021 when there is no row to
    // move to; a move ends an AddNew or Edit without storing it.
    bool Bof() const;
    bool Eof() const;
    void MoveFirst();
    void MoveNext();
    void MoveLast();
    void MovePrevious();

    int FieldCount() const;
    // By position from 0, or by name without regard to case; an unknown field raises 3265.
    // Reading a field with no current row raises 3021.
    Field Fields(int index);
    Field Fields(const std::string& name);
    FieldValue Value(int index) const;
    const std::string& FieldName(int index) const;
    void SetValue(int index, const FieldValue& value);

    void AddNew();
    void Edit();
    // Stores the row being added or edited. An added row joins the end of the recordset and
    // the current row stays where it was; LastModified reaches the stored row.
    void Update();
    void CancelUpdate();
    // Deletes the current row; there is no current row until the next move.
    void Delete();
    EditMode GetEditMode() const { return editMode_; }

    RecordBookmark Bookmark() const;
    void SetBookmark(RecordBookmark bookmark);
    // The row stored last by Update; error 3021 before any.
    RecordBookmark LastModified() const;

    // The current row's position from 0; -1 without a current row or while adding.
    int AbsolutePosition() const;
    void SetAbsolutePosition(int position);
    int RecordCount() const;
    // Runs the query again and stands on the first row.
    void Requery();

  private:
    friend class Database;

    enum class Target { None, Table, View };

    struct Row {
        RecordBookmark bookmark = 0;
        std::int64_t rowid = 0;
        std::vector<FieldValue> values;
    };

    Recordset(std::shared_ptr<detail::Connection> connection, const std::string& nameOrSql,
              int type);

    void RequireOpen() const;
    void RequireUpdatable() const;
    void EnsureLoaded() const;
    void Load() const;
    // Takes rows from the cursor of a snapshot until row `index` is there or the rows end;
    // whether it is there.
    bool FetchTo(long index) const;
    Row MakeRow(std::vector<FieldValue> values) const;
    int IndexOf(const std::string& name) const;
    const Row& CurrentRow() const;
    void EndEdit();
    void StoreNew();
    void StoreEdit();
    std::string ColumnList() const;
    std::string WhereAllColumns() const;
    // A table row as the engine now gives it, found by its rowid.
    bool RefetchRow(std::int64_t rowid, std::vector<FieldValue>& out) const;
    // A view row just stored from the buffer: of the rows that show every assigned value,
    // the one that keeps most of the other values of `before` (on a tie the first, or the
    // last when `preferLast`).
    bool RefetchViewRow(const std::vector<FieldValue>& before, bool preferLast,
                        std::vector<FieldValue>& out) const;

    std::shared_ptr<detail::Connection> connection_;
    bool open_ = false;
    int type_ = kUpdatable;
    Target target_ = Target::None;
    std::string targetName_;
    std::string loadSql_;                     // for a table: the rowid first, then the fields
    std::vector<FieldValue> loadParameters_;  // the values taken out of the text
    std::string refetchSql_;                  // for a table: the fields of one rowid
    std::vector<std::string> columns_;

    mutable bool loaded_ = false;
    mutable std::vector<Row> rows_;
    mutable std::shared_ptr<detail::Cursor> cursor_;  // the rows of a snapshot not yet taken
    mutable long position_ = 0;       // -1 before the first row, rows_.size() after the last
    mutable bool onDeleted_ = false;  // the current row was deleted
    mutable RecordBookmark nextBookmark_ = 1;
    mutable std::vector<Row> pendingAdds_;  // rows added before the rows were first read

    EditMode editMode_ = EditMode::None;
    std::vector<FieldValue> buffer_;
    std::vector<bool> assigned_;
    RecordBookmark lastModified_ = 0;
    bool hasLastModified_ = false;
};

}  // namespace tarvex
