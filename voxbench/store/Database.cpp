// SPDX-License-Identifier: MIT
#include "voxbench/store/Database.h"

#include <bit>
#include <fmt/format.h>
#include <sqlite3.h>

namespace voxbench
{

static_assert(std::endian::native == std::endian::little, "arrays are stored as they stand in memory");

std::string Checksum::Text() const
{
  return fmt::format("{:016x}", _Sum);
}

Damaged::Damaged(const std::string& iWhat)
    : StoreError(fmt::format("the document is damaged: {}. Restore it from a backup, or import the deck again.", iWhat))
{
}

Database::Database(const std::string& iFile, Mode iMode)
{
  int flags = SQLITE_OPEN_READONLY;
  if (iMode != Mode::kRead)
    flags = SQLITE_OPEN_READWRITE | (iMode == Mode::kCreate ? SQLITE_OPEN_CREATE : 0);
  const int code = sqlite3_open_v2(iFile.c_str(), &_Handle, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  try
  {
    if (_Handle == nullptr)
      throw std::bad_alloc();
    sqlite3_extended_result_codes(_Handle, 1);
    Check(code);
    sqlite3_db_config(_Handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(_Handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    Execute("PRAGMA cell_size_check = ON");
    Execute("PRAGMA temp_store = MEMORY");
  }
  catch (...)
  {
    sqlite3_close(_Handle);
    throw;
  }
}

Database::~Database()
{
  sqlite3_close(_Handle);
}

void Database::KeepNoJournal()
{
  sqlite3_db_config(_Handle, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr); // it would keep the journal, silently
  Execute("PRAGMA journal_mode = OFF");
  sqlite3_db_config(_Handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
}

void Database::Close()
{
  sqlite3* const handle = _Handle;
  _Handle = nullptr;
  const int code = sqlite3_close(handle);
  if (code != SQLITE_OK)
    throw StoreError(sqlite3_errstr(code), code);
}

void Database::Check(int iCode) const
{
  switch (iCode & 0xff)
  {
  case SQLITE_OK:
  case SQLITE_ROW:
  case SQLITE_DONE:
    return;
  case SQLITE_NOMEM:
    throw std::bad_alloc();
  case SQLITE_CORRUPT:
  case SQLITE_NOTADB:
    throw Damaged(sqlite3_errmsg(_Handle));
  case SQLITE_FULL:
    throw StoreError("the disk is full: make room and try again.", iCode);
  case SQLITE_BUSY:
  case SQLITE_LOCKED:
    throw StoreError("another program is using the document: try again when it has ended.", iCode);
  case SQLITE_READONLY:
  case SQLITE_PERM:
    throw StoreError("it may not be written: check the permissions of the file and of its folder.", iCode);
  default:
    throw StoreError(fmt::format("{}: check the disk and try again.", sqlite3_errmsg(_Handle)), iCode);
  }
}

void Database::Execute(const char* iStatement)
{
  Check(sqlite3_exec(_Handle, iStatement, nullptr, nullptr, nullptr));
}

std::int64_t Database::Integer(const char* iQuestion)
{
  Statement question(*this, iQuestion);
  return question.Next() ? question.Integer() : 0;
}

bool Database::HasTable(const char* iName)
{
  Statement question(*this, "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name = ?1");
  question.Add(iName);
  return question.Next() && question.Integer() > 0;
}

Statement::Statement(const Database& iDatabase, const char* iText, Checksum* ioSum) : _Database(iDatabase), _Sum(ioSum)
{
  const int code = sqlite3_prepare_v2(iDatabase.Handle(), iText, -1, &_Handle, nullptr);
  if (code == SQLITE_ERROR) // the text is right: a table or a column is missing
    throw Damaged(sqlite3_errmsg(iDatabase.Handle()));
  iDatabase.Check(code);
}

Statement::~Statement()
{
  sqlite3_finalize(_Handle);
}

Statement& Statement::Add(std::int64_t iValue)
{
  _Database.Check(sqlite3_bind_int64(_Handle, ++_Column, iValue));
  if (_Sum != nullptr)
    _Sum->Add(static_cast<std::uint64_t>(iValue));
  return *this;
}

Statement& Statement::Add(double iValue)
{
  _Database.Check(sqlite3_bind_double(_Handle, ++_Column, iValue));
  if (_Sum != nullptr)
    _Sum->Add(std::bit_cast<std::uint64_t>(iValue));
  return *this;
}

Statement& Statement::Add(std::string_view iText)
{
  const char* const text = iText.data() == nullptr ? "" : iText.data();
  _Database.Check(sqlite3_bind_text64(_Handle, ++_Column, text, iText.size(), SQLITE_STATIC, SQLITE_UTF8));
  if (_Sum != nullptr)
    _Sum->Add(BytesOf(iText.data(), iText.size()));
  return *this;
}

Statement& Statement::AddBlob(std::span<const std::byte> iBytes)
{
  const void* const bytes = iBytes.data() == nullptr ? static_cast<const void*>("") : iBytes.data();
  _Database.Check(sqlite3_bind_blob64(_Handle, ++_Column, bytes, iBytes.size(), SQLITE_STATIC));
  if (_Sum != nullptr)
    _Sum->Add(iBytes);
  return *this;
}

Statement& Statement::AddNull()
{
  _Database.Check(sqlite3_bind_null(_Handle, ++_Column));
  if (_Sum != nullptr)
    _Sum->Add(std::uint64_t{0});
  return *this;
}

void Statement::Insert()
{
  _Database.Check(sqlite3_step(_Handle));
  _Database.Check(sqlite3_reset(_Handle));
  _Column = 0;
}

bool Statement::Next()
{
  const int code = sqlite3_step(_Handle);
  _Database.Check(code);
  _Column = 0;
  return code == SQLITE_ROW;
}

Statement::Kind Statement::KindOfNext() const
{
  switch (sqlite3_column_type(_Handle, _Column))
  {
  case SQLITE_INTEGER:
    return Kind::kInteger;
  case SQLITE_FLOAT:
    return Kind::kReal;
  case SQLITE_TEXT:
    return Kind::kText;
  case SQLITE_BLOB:
    return Kind::kBlob;
  default:
    return Kind::kNull;
  }
}

void Statement::Expect(Kind iKind)
{
  if (KindOfNext() != iKind)
    throw Damaged(
        fmt::format("column {} of a table has a value of another kind", sqlite3_column_name(_Handle, _Column)));
}

std::int64_t Statement::Integer()
{
  Expect(Kind::kInteger);
  const std::int64_t value = sqlite3_column_int64(_Handle, _Column++);
  if (_Sum != nullptr)
    _Sum->Add(static_cast<std::uint64_t>(value));
  return value;
}

std::int64_t Statement::Integer(std::int64_t iLeast, std::int64_t iMost)
{
  const std::int64_t value = Integer();
  if (value < iLeast || value > iMost)
    throw Damaged(
        fmt::format("column {} of a table has the value {}", sqlite3_column_name(_Handle, _Column - 1), value));
  return value;
}

double Statement::Real()
{
  Expect(Kind::kReal);
  const double value = sqlite3_column_double(_Handle, _Column++);
  if (_Sum != nullptr)
    _Sum->Add(std::bit_cast<std::uint64_t>(value));
  return value;
}

std::string_view Statement::Text()
{
  Expect(Kind::kText);
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(_Handle, _Column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(_Handle, _Column++));
  if (text == nullptr)
    throw std::bad_alloc();
  if (_Sum != nullptr)
    _Sum->Add(BytesOf(text, size));
  return {text, size};
}

std::span<const std::byte> Statement::Blob()
{
  Expect(Kind::kBlob);
  const auto* const bytes = static_cast<const std::byte*>(sqlite3_column_blob(_Handle, _Column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(_Handle, _Column++));
  if (bytes == nullptr && size > 0)
    throw std::bad_alloc();
  if (_Sum != nullptr)
    _Sum->Add({bytes, size});
  return {bytes, size};
}

bool Statement::Null()
{
  if (KindOfNext() != Kind::kNull)
    return false;
  ++_Column;
  if (_Sum != nullptr)
    _Sum->Add(std::uint64_t{0});
  return true;
}

} // namespace voxbench
