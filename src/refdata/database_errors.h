#pragma once
// Error numbers of the database layer beyond the classic ones of common/error.h; a failing
// SQL text is kErrSqlFailed (3075) with the engine's message.
namespace tarvex {

enum DatabaseErrorNumber : int {
    kErrInvalidArgument = 3001,
    kErrNoUpdateMode = 3020,  // Update or a field assignment without AddNew or Edit
    kErrReadOnly = 3027,      // a change to a snapshot or to a result of several tables
    kErrInvalidBookmark = 3159,
    kErrItemNotFound = 3265,  // no field of that name or index
    kErrUnrecognizedDatabase = 3343,
    kErrObjectClosed = 3420,  // use of a closed database or recordset
};

}  // namespace tarvex
