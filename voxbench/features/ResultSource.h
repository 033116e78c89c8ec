// SPDX-License-Identifier: MIT
#pragma once
#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXSamCharacVersion.h"
#include "ExplicitModel/VOXSamTypes.h"

#include <memory>
#include <vector>

namespace voxbench
{

//! What results a solution has, and their values when they are asked for.
//!
//! Implemented by: whoever reads results. Called by: SolutionResults.
class ResultSource
{
public:
  //! A physical type of results. The arrays stand as long as the source: the feature hands them out.
  struct Quantity
  {
    int physicalType = VOXSamPhysicalTypeNone; //!< number in the rules data of the model
    VOXString name;
    VOXString title;
    std::vector<VOXSamCharacVersion> versions; //!< an imaginary part is a version of its own, behind the real part
    std::vector<VOXString> positions;          //!< of every version
  };

  //! Values of one quantity in one version.
  struct Values
  {
    int components = 0;
    std::vector<VOXSamModelDataRoot*> entities; //!< borrowed objects of the model
    std::vector<double> numbers;                //!< entities x components, entity by entity
    std::vector<unsigned char> flags;           //!< per entity: 0 where a number is missing
  };

  virtual ~ResultSource() = default;

  virtual const std::vector<Quantity>& Quantities() const = 0;

  //! @param iQuantity place in Quantities. @param iVersion one of its versions.
  //! @return S_OK; E_FAIL when the values cannot be had any more.
  virtual HRESULT Read(std::size_t iQuantity, const VOXSamCharacVersion& iVersion, Values& oValues) = 0;
};

class SolutionData;
inline constexpr IID IID_SolutionData = VOXGuidOfName("SolutionData");

//! Face of a solution feature that keeps where its results come from.
class SolutionData final : public VOXBaseUnknown
{
  VOX_INTERFACE(SolutionData)

  //! The source, borrowed; null while the feature has none.
  ResultSource* Source() const { return _Source.get(); }
  void SetSource(std::shared_ptr<ResultSource> iSource) { _Source = std::move(iSource); }

private:
  std::shared_ptr<ResultSource> _Source;
};

using SolutionData_var = VOXHandle<SolutionData>;

} // namespace voxbench
