#pragma once
// A lookup on the shared recordset slot theRS: the query is opened as a snapshot for the
// length of a scope and closed again however the scope ends, so that nothing keeps theRS
// open across events. Lookups never nest.
#include <string>

#include "refdata/reference_database.h"

namespace tarvex {

class Lookup {
  public:
    Lookup(ReferenceDatabase& db, const std::string& sql) : rs(db.theRS) {
        rs = db.theDB.OpenRecordset(sql, kSnapshot);
    }
    ~Lookup() { rs.Close(); }
    Lookup(const Lookup&) = delete;
    Lookup& operator=(const Lookup&) = delete;

    Recordset* operator->() { return &rs; }
    Field operator[](int index) { return rs.Fields(index); }

    Recordset& rs;
};

}  // namespace tarvex
