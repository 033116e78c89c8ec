// SPDX-License-Identifier: MIT
#include "voxbench/store/Meta.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr const char* kWrite = "INSERT INTO meta VALUES(?1, ?2) ON CONFLICT(key) DO UPDATE SET value = excluded.value";
constexpr const char* kSeal = "seal";

Statement& Find(Statement& ioQuestion, const char* iName)
{
  ioQuestion.Add(iName);
  if (!ioQuestion.Next())
    throw Damaged(fmt::format("it has no {}", iName));
  return ioQuestion;
}

std::string SumOf(const Database& iDatabase)
{
  Checksum sum;
  Statement row(iDatabase, "SELECT key, value FROM meta WHERE key <> 'seal' ORDER BY key", &sum);
  while (row.Next())
  {
    row.Text();
    switch (row.KindOfNext())
    {
    case Statement::Kind::kInteger:
      row.Integer();
      break;
    case Statement::Kind::kReal:
      row.Real();
      break;
    case Statement::Kind::kText:
      row.Text();
      break;
    case Statement::Kind::kBlob:
      row.Blob();
      break;
    case Statement::Kind::kNull:
      row.Null();
      break;
    }
  }
  return sum.Text();
}

} // namespace

void WriteMeta(const Database& iDatabase, const char* iName, std::int64_t iValue)
{
  Statement row(iDatabase, kWrite);
  row.Add(iName).Add(iValue).Insert();
}

void WriteMeta(const Database& iDatabase, const char* iName, const std::string& iValue)
{
  Statement row(iDatabase, kWrite);
  row.Add(iName).Add(iValue).Insert();
}

std::int64_t ReadMetaNumber(const Database& iDatabase, const char* iName)
{
  Statement question(iDatabase, "SELECT value FROM meta WHERE key = ?1");
  return Find(question, iName).Integer();
}

std::string ReadMetaText(const Database& iDatabase, const char* iName)
{
  Statement question(iDatabase, "SELECT value FROM meta WHERE key = ?1");
  return std::string(Find(question, iName).Text());
}

void SealMeta(const Database& iDatabase)
{
  WriteMeta(iDatabase, kSeal, SumOf(iDatabase));
}

std::string ReadSeal(const Database& iDatabase)
{
  return ReadMetaText(iDatabase, kSeal);
}

void RefuseBrokenSeal(const Database& iDatabase)
{
  if (ReadSeal(iDatabase) != SumOf(iDatabase))
    throw Damaged("what it tells about itself does not add up");
}

} // namespace voxbench
