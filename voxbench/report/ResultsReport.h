// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace voxbench
{

//! A version of results, as people see it.
struct ResultVersion
{
  std::string name; //!< "3"; "3i" for the imaginary part
  std::string kind; //!< static, time, mode, buckling, frequency
  bool isImaginary = false;
  std::int32_t number = 0;
  std::int32_t step = 0;           //!< 0 when it is not known, as increment and mode
  std::int32_t increment = 0;      //!< in its step
  std::int32_t mode = 0;           //!< in its step
  std::int32_t nodalDiameter = -1; //!< -1 without cyclic symmetry
  double value = 0.;               //!< time, load factor, frequency or buckling factor
};

//! What a result file offers.
struct ResultsListing
{
  struct Type
  {
    std::string name;
    std::string title;
    std::vector<std::string> components;
    struct Available
    {
      std::string version;
      std::vector<std::string> positions;
    };
    std::vector<Available> available;
  };

  std::string file;
  std::string deck; //!< "" without one
  std::int64_t nodes = 0;
  std::int64_t elements = 0;
  std::vector<ResultVersion> versions; //!< real parts
  std::vector<Type> types;
  std::vector<std::string> groups;
};

//! Values of one definition, on all nodes or on those of groups.
struct ResultTable
{
  struct Extreme
  {
    double value = 0.;
    std::int32_t node = 0; //!< 0: no value at all
    std::array<double, 3> place{};
  };
  struct Group
  {
    std::string name; //!< "" for all nodes
    std::string kind;
    std::int64_t entities = 0;
    std::vector<std::int32_t> nodes; //!< those that have values, ascending
    std::vector<double> numbers;     //!< nodes x components; NaN where a number is missing
    std::vector<double> places;      //!< x, y, z per node
    std::vector<Extreme> minima;     //!< per component
    std::vector<Extreme> maxima;
    std::string failure; //!< why there are no values; "" when there are
  };

  std::string type;
  std::string title;
  ResultVersion version;
  std::string position;
  std::vector<std::string> components;
  std::int64_t entities = 0; //!< of the collector
  std::int64_t whole = 0;    //!< those of them that have all numbers
  bool isUpToDate = false;
  std::string archiver; //!< "none", "streamable", "not streamable"
  std::string failure;  //!< why there is no collector; "" when there is
  std::vector<Group> groups;
};

//! What became of the collectors in the end.
struct ResultsDeleted
{
  std::string operation; //!< DeleteCharacCollector or DeleteAll
  int deleted = 0;
  int left = 0;
};

//! Writes what `voxbench results` shows: a listing, or tables one by one; then perhaps what was deleted.
class ResultsReport
{
public:
  virtual ~ResultsReport() = default;
  virtual void List(const ResultsListing& iListing) = 0;
  virtual void Add(const ResultTable& iTable) = 0;
  virtual void Tell(const ResultsDeleted& iDeleted) = 0;
  //! Ends the report.
  virtual void Close() = 0;

  //! @param iWithValues false: of tables only minimum and maximum.
  static std::unique_ptr<ResultsReport> Text(Output& ioOutput, bool iWithValues);
  static std::unique_ptr<ResultsReport> Csv(Output& ioOutput, bool iWithValues);
  static std::unique_ptr<ResultsReport> Json(Output& ioOutput, bool iWithValues);
};

//! The shortest text that reads back as the same number, taken for one of single precision if it is one; "" for none.
std::string NumberText(double iNumber);

} // namespace voxbench
