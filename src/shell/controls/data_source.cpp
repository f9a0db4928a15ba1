#include "shell/controls/data_source.h"

#include "common/error.h"

namespace tarvex {

namespace {
constexpr int kErrObjectNotSet = 91;
}

void DataSource::SetDatabaseName(const std::string& path) {
    if (path == databaseName_) return;
    databaseName_ = path;
    Notify(Aspect::Value);
}

void DataSource::SetRecordSource(const std::string& source) {
    if (source == recordSource_) return;
    recordSource_ = source;
    Notify(Aspect::Value);
}

void DataSource::Refresh() {
    recordset_.Close();
    if (!database_.IsOpen() || openedName_ != databaseName_) {
        database_.Close();
        openedName_.clear();
        database_.Open(databaseName_);
        openedName_ = databaseName_;
    }
    try {
        recordset_ = database_.OpenRecordset(recordSource_);
        if (!recordset_.Eof()) recordset_.MoveFirst();
    } catch (...) {
        recordset_.Close();
        Notify(Aspect::Rows);
        throw;
    }
    Notify(Aspect::Rows);
    RaiseReposition();
}

Recordset& DataSource::Recordset() {
    if (!recordset_.IsOpen())
        Raise(kErrObjectNotSet, "Object variable or With block variable not set");
    return recordset_;
}

bool DataSource::RunValidate(int action) {
    int save = recordset_.IsOpen() && recordset_.GetEditMode() != EditMode::None ? 1 : 0;
    if (Validate) Validate(action, save);
    if (action == kDataActionCancel) return false;
    if (recordset_.IsOpen() && recordset_.GetEditMode() != EditMode::None) {
        if (save != 0) {
            recordset_.Update();
            Notify(Aspect::Rows);
        } else {
            recordset_.CancelUpdate();
        }
    }
    return true;
}

void DataSource::UpdateRecord() {
    tarvex::Recordset& rs = Recordset();
    if (rs.GetEditMode() == EditMode::None) return;
    int action = kDataActionUpdate;
    int save = 1;
    if (Validate) Validate(action, save);
    if (action == kDataActionCancel || save == 0) return;
    rs.Update();
    Notify(Aspect::Rows);
}

void DataSource::MoveTo(int position) {
    tarvex::Recordset& rs = Recordset();
    if (position < 0 || position >= rs.RecordCount()) Raise(kErrInvalidProperty);
    if (!RunValidate(kDataActionBookmark)) return;
    rs.SetAbsolutePosition(position);
    Notify(Aspect::Selection);
    RaiseReposition();
}

void DataSource::MoveToBookmark(RecordBookmark bookmark) {
    tarvex::Recordset& rs = Recordset();
    if (!RunValidate(kDataActionBookmark)) return;
    rs.SetBookmark(bookmark);
    Notify(Aspect::Selection);
    RaiseReposition();
}

void DataSource::MoveToNewRow() {
    tarvex::Recordset& rs = Recordset();
    if (!RunValidate(kDataActionAddNew)) return;
    rs.AddNew();
    Notify(Aspect::Selection);
    RaiseReposition();
}

void DataSource::Close() {
    if (recordset_.IsOpen()) {
        int action = kDataActionClose;
        int save = 0;
        if (Validate) Validate(action, save);
    }
    recordset_.Close();
    database_.Close();
    openedName_.clear();
    Notify(Aspect::Rows);
}

void DataSource::ReportUserError(const AppError& error) {
    int response = kDataErrDisplay;
    errorText_ = error.Description();
    if (Error) Error(error.Number(), response);
    if (response != kDataErrContinue) throw error;
}

void DataSource::RaiseReposition() {
    if (Reposition) Reposition();
}

void DataSource::ListEvents(std::vector<NamedEvent>& out) const {
    CaptionControl::ListEvents(out);
    out.push_back({"Validate", &Validate});
    out.push_back({"Reposition", &Reposition});
    out.push_back({"Error", &Error});
}

}  // namespace tarvex
