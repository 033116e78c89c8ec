// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/store/Checksum.h"

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace voxbench
{

//! What went wrong with a stored document. Thrown inside of the store only: its doors turn it into an outcome.
class StoreError : public std::runtime_error
{
public:
  //! @param iReason a sentence without the file. @param iCode of the database; 0 when it was none of its.
  explicit StoreError(const std::string& iReason, int iCode = 0) : std::runtime_error(iReason), code(iCode) {}

  const int code;
};

//! The content is not what this program writes.
class Damaged : public StoreError
{
public:
  explicit Damaged(const std::string& iWhat);
};

//! A connection to a database file; closed with its object, an open transaction is taken back.
class Database
{
public:
  enum class Mode
  {
    kRead,  //!< never writes to the file
    kWrite, //!< the file must be there
    kCreate
  };

  Database(const std::string& iFile, Mode iMode);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void Execute(const char* iStatement);
  std::int64_t Integer(const char* iQuestion); //!< the first column of the first row; 0 when there is none
  bool HasTable(const char* iName);
  void KeepNoJournal(); //!< for a file that goes when anything fails
  void Close();         //!< what its destructor does, but failures are thrown
  sqlite3* Handle() const { return _Handle; }

  //! Throws what the database says about a result code other than success.
  void Check(int iCode) const;

private:
  sqlite3* _Handle = nullptr;
};

//! A prepared statement that is told values, or gives columns, one after the other. What goes through is summed up.
class Statement
{
public:
  //! @param ioSum takes in every value; null for none.
  Statement(const Database& iDatabase, const char* iText, Checksum* ioSum = nullptr);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // Writing: the values of a row in their order, then Insert. Texts and blobs are borrowed until then.
  Statement& Add(std::int64_t iValue);
  Statement& Add(double iValue);
  Statement& Add(std::string_view iText);
  Statement& Add(const char* iText) { return Add(std::string_view(iText)); }
  Statement& AddBlob(std::span<const std::byte> iBytes);
  Statement& AddNull();
  void Insert();

  // Reading: Next, then the columns in their order. Texts and blobs are borrowed until the following Next.
  bool Next();
  enum class Kind
  {
    kNull,
    kInteger,
    kReal,
    kText,
    kBlob
  };
  Kind KindOfNext() const; //!< of the column that is read next
  std::int64_t Integer();
  double Real();
  std::string_view Text();
  std::span<const std::byte> Blob();
  bool Null(); //!< passes over the column when it is null

  //! An integer in a range; anything else is damage.
  std::int64_t Integer(std::int64_t iLeast, std::int64_t iMost);

private:
  void Expect(Kind iKind);

  const Database& _Database;
  sqlite3_stmt* _Handle = nullptr;
  Checksum* _Sum;
  int _Column = 0;
};

//! The bytes of an array of plain values. They are little-endian, as all machines that this runs on.
template <class T>
std::span<const std::byte> BytesOf(const T* iData, std::size_t iCount)
{
  return {reinterpret_cast<const std::byte*>(iData), iCount * sizeof(T)};
}

} // namespace voxbench
