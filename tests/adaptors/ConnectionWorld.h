// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "VOXESamConnectionDesignAdaptor.h"
#include "tests/support/Bench.h"
#include "tests/support/CallLog.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedInterfaces.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace voxtest
{

//! The adaptor, noting each question for its implementation and each query that goes to it instead.
class NotedConnectionDesign : public VOXESamConnectionDesignAdaptor
{
public:
  using VOXESamConnectionDesignAdaptor::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    CallLog::Note("own query");
    return VOXESamConnectionDesignAdaptor::QueryInterface(iInterface, oFace);
  }
  VOXBaseUnknown* GetImpl(int iMode = 0) const override
  {
    CallLog::Note("own implementation(" + std::to_string(iMode) + ")");
    return VOXESamConnectionDesignAdaptor::GetImpl(iMode);
  }
};

class TiedConnectionDesign : public VOXTieConnectionDesign<NotedConnectionDesign>
{
public:
  using Carries = VOXISamConnectionDesign;
};

inline constexpr char kRole1[] = "SAMConnectionDesigner1";
inline constexpr char kRole2[] = "SAMConnectionDesigner2";

//! What both operations give: lists of supports and of designers by their names, and the result. Lists of designers are
//! deleted with it.
struct ConnectionSides
{
  VOXListValVOXBaseUnknown_var supports1;
  VOXListValVOXBaseUnknown_var supports2;
  VOXListValVOXISpecObject_var* designers1 = nullptr;
  VOXListValVOXISpecObject_var* designers2 = nullptr;

  ConnectionSides() = default;
  ~ConnectionSides()
  {
    delete designers1;
    delete designers2;
  }
  ConnectionSides(const ConnectionSides&) = delete;
  ConnectionSides& operator=(const ConnectionSides&) = delete;
};

//! A connection with a designer on each side: the first stands on A and B and is designed by P, the second stands on C
//! and is designed by Q.
class ConnectionWorld
{
public:
  ConnectionWorld()
      : connection(_Bench.Component<ScriptedAnalysisEntity, TiedConnectionDesign>()),
        designer1(_Bench.Component<ScriptedAnalysisSupport, ScriptedMeshPartFilter>()),
        designer2(_Bench.Component<ScriptedAnalysisSupport, ScriptedMeshPartFilter>())
  {
    Told().roles = {{kRole1, {designer1}}, {kRole2, {designer2}}};
    SupportOf(designer1).supports = {Named("A"), Named("B")};
    SupportOf(designer2).supports = {Named("C")};
    FilterOf(designer1).designers = {Named("P")};
    FilterOf(designer2).designers = {Named("Q")};
  }

  VOXISamConnectionDesign_var Design() const { return VOXISamConnectionDesign_var(connection); }
  HRESULT GetSupports(ConnectionSides& ioSides) const
  {
    return Design()->GetConnectedSupports(ioSides.supports1, ioSides.supports2);
  }
  HRESULT GetDesigners(ConnectionSides& ioSides) const
  {
    return Design()->GetConnectionDesigners(ioSides.supports1, ioSides.designers1, ioSides.supports2,
                                            ioSides.designers2);
  }

  AnalysisEntityScript& Told() const { return ScriptedAnalysisEntity::ScriptOf(connection); }
  static AnalysisSupportScript& SupportOf(const VOXBaseUnknown* iObject)
  {
    return ScriptedAnalysisSupport::ScriptOf(iObject);
  }
  static MeshPartFilterScript& FilterOf(const VOXBaseUnknown* iObject)
  {
    return ScriptedMeshPartFilter::ScriptOf(iObject);
  }

  //! A feature of that name.
  VOXBaseUnknown* Named(const std::string& iName)
  {
    VOXBaseUnknown* const made = _Bench.Component<ScriptedSpecObject>();
    _Names[made] = iName;
    return made;
  }

  //! Names of the elements: "A B"; "" for an empty list.
  template <class List>
  std::string Names(const List& iList) const
  {
    std::string names;
    for (int i = 1; i <= iList.Size(); ++i)
      names += (i == 1 ? "" : " ") + _Names.at(iList[i]->GetImpl(0));
    return names;
  }
  std::string NamesAt(const VOXListValVOXISpecObject_var* iList) const
  {
    return iList == nullptr ? "no list" : Names(*iList);
  }

  Bench& MoreComponents() { return _Bench; }

private:
  Bench _Bench;
  std::map<const VOXBaseUnknown*, std::string> _Names;

public:
  VOXBaseUnknown* const connection;
  VOXBaseUnknown* const designer1;
  VOXBaseUnknown* const designer2;
};

} // namespace voxtest
