#include "refdata/database.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "common/error.h"
#include "refdata/connection.h"
#include "refdata/sql_parameters.h"
#include "refdata/sql_tokens.h"
#include "refdata/sql_translation.h"

namespace tarvex {

namespace {

// Whether a text holds more than one statement: a ";" with something other than blanks
// behind it.
bool SeveralStatements(const std::string& sql) {
    bool ended = false;
    for (const SqlToken& token : TokenizeSql(sql)) {
        if (token.kind == SqlTokenKind::Space) continue;
        if (ended) return true;
        ended = token.kind == SqlTokenKind::Punct && token.text == ";";
    }
    return false;
}

}  // namespace

Database::~Database() = default;

Database& Database::operator=(Database&& other) noexcept {
    if (this != &other) {
        Close();
        connection_ = std::move(other.connection_);
    }
    return *this;
}

void Database::Open(const std::string& path) {
    Close();
    connection_ = std::make_shared<detail::Connection>(path);
}

void Database::OpenReadOnly(const std::string& path) {
    Close();
    connection_ = std::make_shared<detail::Connection>(path, true);
}

bool Database::IsOpen() const {
    return connection_ && connection_->IsOpen();
}

const std::string& Database::Name() const {
    static const std::string kNone;
    return connection_ ? connection_->Path() : kNone;
}

Recordset Database::OpenRecordset(const std::string& nameOrSql, int type) {
    if (!IsOpen()) Raise(kErrObjectClosed, "Object invalid or no longer set.");
    return Recordset(connection_, nameOrSql, type);
}

void Database::Execute(const std::string& sql) {
    if (!IsOpen()) Raise(kErrObjectClosed, "Object invalid or no longer set.");
    ParameterizedSql parameterized = ParameterizeSql(sql);
    if (!parameterized.values.empty()) {
        connection_->Run(TranslateSqlOnce(parameterized.shape), parameterized.values);
        return;
    }
    const std::string translated = TranslateSql(sql);
    // One statement goes through the statement cache; a script is run as it stands.
    if (SeveralStatements(translated)) {
        connection_->Run(translated);
    } else {
        connection_->Run(translated, {});
    }
}

void Database::Execute(const std::string& sql, const std::vector<FieldValue>& parameters) {
    if (!IsOpen()) Raise(kErrObjectClosed, "Object invalid or no longer set.");
    connection_->Run(TranslateSql(sql), parameters);
}

void Database::CompactDatabase(const std::string& source, const std::string& destination) {
    {
        detail::Connection connection(source);
        connection.Run("VACUUM INTO ?1", {FieldValue(destination)});
    }
    // The copy must be on disk before anything takes it for the database.
    const int fd = ::open(destination.c_str(), O_RDWR | O_CLOEXEC);
    if (fd < 0 || ::fsync(fd) != 0) {
        const std::string message = std::strerror(errno);
        if (fd >= 0) ::close(fd);
        Raise(kErrSqlFailed, "can't write " + destination + ": " + message);
    }
    ::close(fd);
}

void Database::Close() {
    if (connection_) connection_->Close();
    connection_.reset();
}

}  // namespace tarvex
