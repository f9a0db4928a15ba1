#include "refdata/recordset.h"

#include <algorithm>
#include <cctype>
#include <limits>

#include "common/error.h"
#include "common/text.h"
#include "refdata/connection.h"
#include "refdata/database_errors.h"
#include "refdata/sql_parameters.h"
#include "refdata/sql_tokens.h"
#include "refdata/sql_translation.h"

namespace tarvex {

namespace {

std::string Quoted(const std::string& name) {
    return "[" + name + "]";
}

// A quick test that spares the full look at the text for the usual lookup.
bool LooksLikeSelect(const std::string& sql) {
    const size_t start = sql.find_first_not_of(" \t\r\n");
    if (start == std::string::npos || sql.size() <= start + 6) return false;
    const char next = sql[start + 6];
    return StartsWithText(std::string_view(sql).substr(start), "SELECT") &&
           !(std::isalnum(static_cast<unsigned char>(next)) || next == '_');
}

}  // namespace

// ---- Field ---------------------------------------------------------------------------------

const std::string& Field::Name() const {
    return recordset_->FieldName(index_);
}
FieldValue Field::Value() const {
    return recordset_->Value(index_);
}

Field& Field::operator=(const FieldValue& value) {
    recordset_->SetValue(index_, value);
    return *this;
}

// ---- Opening and closing -------------------------------------------------------------------

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::Recordset(std::shared_ptr<detail::Connection> connection, const std::string& nameOrSql,
                     int type)
    : connection_(std::move(connection)), type_(type) {
    ParameterizedSql parameterized = ParameterizeSql(nameOrSql);
    const std::string sql = TranslateSqlOnce(parameterized.shape);
    loadParameters_ = std::move(parameterized.values);
    const bool snapshot = type == kSnapshot;
    std::string source;
    std::string selectList = "*";
    if (const std::string name = LooksLikeSelect(sql) ? std::string() : NameOnly(sql);
        !name.empty()) {
        source = name;
        loadSql_ = "SELECT * FROM " + Quoted(name);
    } else {
        loadSql_ = sql;
    }
    if (!snapshot && source.empty()) {
        const SelectParts parts = ParseSelect(sql);
        if (parts.isSelect && !parts.distinct) {
            source = parts.singleSource;
            selectList = parts.selectList;
        }
    }
    if (!snapshot && !source.empty()) {
        switch (connection_->KindOf(source, &targetName_)) {
            case detail::ObjectKind::Table:
                target_ = Target::Table;
                loadSql_ = "SELECT rowid, " + ParseSelect(loadSql_).afterSelect;
                refetchSql_ =
                    "SELECT " + selectList + " FROM " + Quoted(targetName_) + " WHERE rowid = ?1";
                break;
            case detail::ObjectKind::View:
                target_ = Target::View;
                break;
            case detail::ObjectKind::None:
                break;
        }
    }
    // Preparing here makes a bad text fail at the open, as it should.
    columns_ = connection_->ColumnNames(loadSql_);
    if (target_ == Target::Table) columns_.erase(columns_.begin());
    open_ = true;
    if (snapshot) Load();
}

bool Recordset::FetchTo(long index) const {
    while (cursor_ && index >= static_cast<long>(rows_.size())) {
        std::vector<FieldValue> values;
        if (!cursor_->Next(values)) {
            cursor_.reset();
            break;
        }
        rows_.push_back(MakeRow(std::move(values)));
    }
    return index < static_cast<long>(rows_.size());
}

void Recordset::Close() noexcept {
    open_ = false;
    cursor_.reset();
    connection_.reset();
    rows_.clear();
    pendingAdds_.clear();
    buffer_.clear();
    assigned_.clear();
    editMode_ = EditMode::None;
    loaded_ = false;
}

bool Recordset::Updatable() const {
    return open_ && type_ != kSnapshot && target_ != Target::None;
}

void Recordset::RequireOpen() const {
    if (!open_) Raise(kErrObjectClosed, "Object invalid or no longer set.");
}

void Recordset::RequireUpdatable() const {
    RequireOpen();
    if (!Updatable()) Raise(kErrReadOnly, "Cannot update. Database or object is read-only.");
}

// ---- Reading the rows ----------------------------------------------------------------------

Recordset::Row Recordset::MakeRow(std::vector<FieldValue> values) const {
    Row row;
    if (target_ == Target::Table) {
        row.rowid = values.front().Int64();
        values.erase(values.begin());
        // A table row keeps its bookmark across Requery.
        row.bookmark = row.rowid;
    } else {
        row.bookmark = nextBookmark_++;
    }
    row.values = std::move(values);
    return row;
}

void Recordset::Load() const {
    cursor_.reset();
    if (type_ == kSnapshot) {
        // A snapshot's rows come as they are read: a lookup of one row reads one row.
        rows_.clear();
        cursor_ = connection_->OpenCursor(loadSql_, loadParameters_);
        FetchTo(0);
        loaded_ = true;
        position_ = 0;
        onDeleted_ = false;
        return;
    }
    auto result = connection_->Query(loadSql_, loadParameters_);
    rows_.clear();
    rows_.reserve(result.size() + pendingAdds_.size());
    for (auto& values : result)
        rows_.push_back(MakeRow(std::move(values)));
    // A row added before the first read stays in the recordset even if the query's own
    // conditions would leave it out.
    for (Row& added : pendingAdds_) {
        const bool present = std::any_of(rows_.begin(), rows_.end(),
                                         [&](const Row& row) { return row.rowid == added.rowid; });
        if (!present) rows_.push_back(std::move(added));
    }
    pendingAdds_.clear();
    loaded_ = true;
    position_ = 0;
    onDeleted_ = false;
}

void Recordset::EnsureLoaded() const {
    RequireOpen();
    if (!loaded_) Load();
}

bool Recordset::Bof() const {
    EnsureLoaded();
    return rows_.empty() || position_ < 0;
}

bool Recordset::Eof() const {
    EnsureLoaded();
    FetchTo(position_);
    return rows_.empty() || position_ >= static_cast<long>(rows_.size());
}

const Recordset::Row& Recordset::CurrentRow() const {
    if (Bof() || Eof() || onDeleted_) Raise(kErrNoCurrentRecord);
    return rows_[position_];
}

int Recordset::FieldCount() const {
    RequireOpen();
    return static_cast<int>(columns_.size());
}

const std::string& Recordset::FieldName(int index) const {
    RequireOpen();
    if (index < 0 || index >= static_cast<int>(columns_.size())) {
        Raise(kErrItemNotFound, "Item not found in this collection.");
    }
    return columns_[index];
}

int Recordset::IndexOf(const std::string& name) const {
    RequireOpen();
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (SameText(columns_[i], name)) return static_cast<int>(i);
    }
    Raise(kErrItemNotFound, "Item not found in this collection.");
}

Field Recordset::Fields(int index) {
    FieldName(index);
    return Field(*this, index);
}

Field Recordset::Fields(const std::string& name) {
    return Field(*this, IndexOf(name));
}

FieldValue Recordset::Value(int index) const {
    FieldName(index);
    if (editMode_ != EditMode::None) return buffer_[index];
    return CurrentRow().values[index];
}

// ---- Moving --------------------------------------------------------------------------------

void Recordset::MoveFirst() {
    EnsureLoaded();
    if (rows_.empty()) Raise(kErrNoCurrentRecord);
    EndEdit();
    position_ = 0;
    onDeleted_ = false;
}

void Recordset::MoveLast() {
    EnsureLoaded();
    FetchTo(std::numeric_limits<long>::max());
    if (rows_.empty()) Raise(kErrNoCurrentRecord);
    EndEdit();
    position_ = static_cast<long>(rows_.size()) - 1;
    onDeleted_ = false;
}

void Recordset::MoveNext() {
    // After a delete the position already names the row that followed the deleted one (or
    // the end, when the last row went).
    if (Eof() && !onDeleted_) Raise(kErrNoCurrentRecord);
    EndEdit();
    if (!onDeleted_) ++position_;
    onDeleted_ = false;
}

void Recordset::MovePrevious() {
    if (Bof() && !onDeleted_) Raise(kErrNoCurrentRecord);
    EndEdit();
    position_ = std::max(position_ - 1, -1L);
    onDeleted_ = false;
}

RecordBookmark Recordset::Bookmark() const {
    return CurrentRow().bookmark;
}

void Recordset::SetBookmark(RecordBookmark bookmark) {
    EnsureLoaded();
    FetchTo(std::numeric_limits<long>::max());
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].bookmark == bookmark) {
            EndEdit();
            position_ = static_cast<long>(i);
            onDeleted_ = false;
            return;
        }
    }
    Raise(kErrInvalidBookmark, "Not a valid bookmark.");
}

RecordBookmark Recordset::LastModified() const {
    RequireOpen();
    if (!hasLastModified_) Raise(kErrNoCurrentRecord);
    return lastModified_;
}

int Recordset::AbsolutePosition() const {
    if (editMode_ == EditMode::Add || Bof() || Eof() || onDeleted_) return -1;
    return static_cast<int>(position_);
}

void Recordset::SetAbsolutePosition(int position) {
    EnsureLoaded();
    FetchTo(position);
    if (position < 0 || position >= static_cast<int>(rows_.size())) {
        Raise(kErrInvalidArgument, "Invalid argument.");
    }
    EndEdit();
    position_ = position;
    onDeleted_ = false;
}

int Recordset::RecordCount() const {
    EnsureLoaded();
    FetchTo(std::numeric_limits<long>::max());
    return static_cast<int>(rows_.size());
}

void Recordset::Requery() {
    RequireOpen();
    EndEdit();
    pendingAdds_.clear();
    Load();
}

// ---- Changing ------------------------------------------------------------------------------

void Recordset::EndEdit() {
    editMode_ = EditMode::None;
    buffer_.clear();
    assigned_.clear();
}

void Recordset::AddNew() {
    RequireUpdatable();
    editMode_ = EditMode::Add;
    buffer_.assign(columns_.size(), FieldValue());
    assigned_.assign(columns_.size(), false);
}

void Recordset::Edit() {
    RequireUpdatable();
    const Row& row = CurrentRow();
    editMode_ = EditMode::InProgress;
    buffer_ = row.values;
    assigned_.assign(columns_.size(), false);
}

void Recordset::CancelUpdate() {
    RequireOpen();
    if (editMode_ == EditMode::None) {
        Raise(kErrNoUpdateMode, "Update or CancelUpdate without AddNew or Edit.");
    }
    EndEdit();
}

void Recordset::SetValue(int index, const FieldValue& value) {
    FieldName(index);
    if (editMode_ == EditMode::None) {
        Raise(kErrNoUpdateMode, "Update or CancelUpdate without AddNew or Edit.");
    }
    buffer_[index] = value;
    assigned_[index] = true;
}

void Recordset::Update() {
    RequireUpdatable();
    if (editMode_ == EditMode::None) {
        Raise(kErrNoUpdateMode, "Update or CancelUpdate without AddNew or Edit.");
    }
    if (editMode_ == EditMode::Add) {
        StoreNew();
    } else {
        StoreEdit();
    }
    EndEdit();
}

std::string Recordset::WhereAllColumns() const {
    std::string where;
    for (const std::string& column : columns_) {
        where += (where.empty() ? " WHERE " : " AND ") + Quoted(column) + " IS ?";
    }
    return where;
}

std::string Recordset::ColumnList() const {
    std::string list;
    for (const std::string& column : columns_)
        list += (list.empty() ? "" : ", ") + Quoted(column);
    return list;
}

bool Recordset::RefetchRow(std::int64_t rowid, std::vector<FieldValue>& out) const {
    const auto rows = connection_->Query(refetchSql_, {FieldValue(static_cast<long long>(rowid))});
    if (rows.empty()) return false;
    out = rows.front();
    return true;
}

bool Recordset::RefetchViewRow(const std::vector<FieldValue>& before, bool preferLast,
                               std::vector<FieldValue>& out) const {
    // The triggers may change other columns too (a name looked up, a value computed), so
    // only the assigned values are sure to show as they were given.
    std::string where;
    std::vector<FieldValue> given;
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (!assigned_[i]) continue;
        where += (where.empty() ? " WHERE " : " AND ") + Quoted(columns_[i]) + " IS ?";
        given.push_back(buffer_[i]);
    }
    const auto rows = connection_->Query(
        "SELECT " + ColumnList() + " FROM " + Quoted(targetName_) + where, given);
    int best = -1;
    int bestScore = -1;
    for (size_t r = 0; r < rows.size(); ++r) {
        int score = 0;
        for (size_t i = 0; i < columns_.size(); ++i) {
            if (!assigned_[i] && rows[r][i] == before[i]) ++score;
        }
        if (score > bestScore || (preferLast && score == bestScore)) {
            best = static_cast<int>(r);
            bestScore = score;
        }
    }
    if (best < 0) return false;
    out = rows[best];
    return true;
}

void Recordset::StoreNew() {
    std::string names;
    std::string marks;
    std::vector<FieldValue> parameters;
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (!assigned_[i]) continue;
        names += (names.empty() ? "" : ", ") + Quoted(columns_[i]);
        marks += marks.empty() ? "?" : ", ?";
        parameters.push_back(buffer_[i]);
    }
    const std::string table = Quoted(targetName_);
    connection_->Run(names.empty()
                         ? "INSERT INTO " + table + " DEFAULT VALUES"
                         : "INSERT INTO " + table + " (" + names + ") VALUES (" + marks + ")",
                     parameters);

    Row row;
    row.values = buffer_;
    if (target_ == Target::Table) {
        row.rowid = connection_->LastInsertRowid();
        row.bookmark = row.rowid;
        RefetchRow(row.rowid, row.values);
        if (!loaded_) {
            pendingAdds_.push_back(row);
        } else {
            rows_.push_back(row);
        }
    } else {
        // A view row has no key: the newest of the rows that show the values given, or the
        // values given when the view doesn't show the row.
        EnsureLoaded();
        row.bookmark = nextBookmark_++;
        RefetchViewRow(buffer_, true, row.values);
        rows_.push_back(row);
    }
    lastModified_ = row.bookmark;
    hasLastModified_ = true;
}

void Recordset::StoreEdit() {
    Row& row = rows_[position_];
    std::string sets;
    std::vector<FieldValue> parameters;
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (!assigned_[i]) continue;
        sets += (sets.empty() ? "" : ", ") + Quoted(columns_[i]) + " = ?";
        parameters.push_back(buffer_[i]);
    }
    if (!sets.empty()) {
        const std::string head = "UPDATE " + Quoted(targetName_) + " SET " + sets;
        if (target_ == Target::Table) {
            parameters.push_back(FieldValue(static_cast<long long>(row.rowid)));
            connection_->Run(head + " WHERE rowid = ?", parameters);
        } else {
            parameters.insert(parameters.end(), row.values.begin(), row.values.end());
            connection_->Run(head + WhereAllColumns(), parameters);
        }
        std::vector<FieldValue> stored = buffer_;
        if (target_ == Target::Table) {
            RefetchRow(row.rowid, stored);
        } else {
            RefetchViewRow(row.values, false, stored);
        }
        row.values = std::move(stored);
    }
    lastModified_ = row.bookmark;
    hasLastModified_ = true;
}

void Recordset::Delete() {
    RequireUpdatable();
    CurrentRow();
    EndEdit();
    const Row& row = rows_[position_];
    if (target_ == Target::Table) {
        connection_->Run("DELETE FROM " + Quoted(targetName_) + " WHERE rowid = ?",
                         {FieldValue(static_cast<long long>(row.rowid))});
    } else {
        connection_->Run("DELETE FROM " + Quoted(targetName_) + WhereAllColumns(), row.values);
    }
    rows_.erase(rows_.begin() + position_);
    onDeleted_ = true;
}

}  // namespace tarvex
