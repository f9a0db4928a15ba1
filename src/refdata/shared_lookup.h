#pragma once
// A lookup on the shared recordset theRS for the time of one scope: opened as a snapshot and
// closed again whatever happens, so that lookups on theRS never outlive their procedure.
#include <string>

#include "refdata/reference_database.h"

namespace tarvex {

class SharedLookup {
  public:
    SharedLookup(ReferenceDatabase& db, const std::string& sql) : rs(db.theRS) {
        rs = db.theDB.OpenRecordset(sql, kSnapshot);
    }
    ~SharedLookup() { rs.Close(); }
    SharedLookup(const SharedLookup&) = delete;
    SharedLookup& operator=(const SharedLookup&) = delete;

    // The first row; a query without rows raises error 3021.
    Recordset& First() {
        rs.MoveFirst();
        return rs;
    }
    Recordset* operator->() { return &rs; }
    Field operator[](int index) { return rs.Fields(index); }

    Recordset& rs;
};

}  // namespace tarvex
