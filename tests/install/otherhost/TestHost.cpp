// SPDX-License-Identifier: MIT
#include "tests/anyhost/TestHost.h"

#include "Features.h"
#include "Log.h"
#include "Runtime.h"

#include <sys/wait.h>
#include <unistd.h>

namespace anyhost
{
namespace
{

using otherhost::Object;

static_assert(static_cast<unsigned>(kExplicit) == otherhost::kExplicit &&
                  static_cast<unsigned>(kModelFactory) == otherhost::kModelFactory,
              "roles are passed on as they are");

class OtherWorld final : public World
{
public:
  explicit OtherWorld(const std::vector<Type>& iTypes) : _Document(_Model)
  {
    for (const Type& type : iTypes)
    {
      otherhost::FeatureType declared{type.name, "", type.physicalType, type.roles, {}, type.entries};
      for (const Attribute& attribute : type.attributes)
      {
        otherhost::Attribute& made = declared.attributes.emplace_back(
            otherhost::Attribute{attribute.name, attribute.type, attribute.elementType});
        for (const Component& component : attribute.components)
          made.parts.push_back({component.name, component.type});
      }
      _Document.Declare(declared);
    }
  }

  VOXBaseUnknown* NewFeature(const char* iType, const char* iName) override { return _Document.New(iType, iName); }
  VOXIContainer* Container() override { return VOXIContainer_var(_Document.Container()); }
  VOXAnalysisExplicitModel* Model() override { return &_Model; }

  VOXAnalysisExplicitEntity NewObject(const VOXAnalysisExplicitData& iParent, const char* iPhysicalType) override
  {
    return HandleOn(_Model.New(iPhysicalType, VOXExplicitAccess::Object(iParent)));
  }

  void FillMesh(const VOXAnalysisExplicitData& iMesh, int iNodes, int iElements) override
  {
    for (int i = 0; i < iNodes; ++i)
      _Nodes.push_back(_Model.New("NODE", VOXExplicitAccess::Object(iMesh)));
    for (int i = 0; i < iElements; ++i)
      _Elements.push_back(_Model.New("ELEMENT", VOXExplicitAccess::Object(iMesh)));
  }

  VOXAnalysisExplicitChild Node(int iNumber) override { return HandleOn(At(_Nodes, iNumber)); }
  VOXAnalysisExplicitChild Element(int iNumber) override { return HandleOn(At(_Elements, iNumber)); }

  void SetApplyTo(const VOXAnalysisExplicitData& iEntity, VOXSamPosition iPosition, const std::vector<int>& iNumbers,
                  const std::vector<int>& iSides) override
  {
    Object& entity = *VOXExplicitAccess::Object(iEntity);
    entity.position = iPosition;
    entity.sides = iSides;
    entity.targets.clear();
    for (const int number : iNumbers)
      entity.targets.push_back(At(iPosition == VOXSamPositionNode ? _Nodes : _Elements, number));
    _Model.Touch(entity);
  }

  void Touch(const VOXAnalysisExplicitData& iObject) override { _Model.Touch(*VOXExplicitAccess::Object(iObject)); }

  void SetStatus(const VOXAnalysisExplicitData& iObject, int iStatus) override
  {
    VOXExplicitAccess::Object(iObject)->status = iStatus;
  }

  Maker MakerOf(const VOXAnalysisExplicitData& iObject) override
  {
    const Object& object = *VOXExplicitAccess::Object(iObject);
    return {object.madeByKind, object.madeBy};
  }

private:
  static Object* At(const std::vector<Object*>& iObjects, int iNumber)
  {
    return iObjects.at(static_cast<std::size_t>(iNumber) - 1);
  }

  static VOXAnalysisExplicitEntity HandleOn(Object* iObject)
  {
    VOXAnalysisExplicitEntity handle;
    VOXExplicitAccess::Target(handle, iObject);
    return handle;
  }

  otherhost::Model _Model;
  otherhost::Document _Document;
  std::vector<Object*> _Nodes;
  std::vector<Object*> _Elements;
};

} // namespace

std::unique_ptr<World> World::Make(const std::vector<Type>& iTypes)
{
  return std::make_unique<OtherWorld>(iTypes);
}

std::vector<Report> TakeReports()
{
  std::vector<Report> reports;
  for (const otherhost::Log::Error& error : otherhost::Log::Get().errors)
    reports.push_back({error.kind, error.text, error.file, error.number});
  otherhost::Log::Get().errors.clear();
  return reports;
}

// Nothing holds a fatal error of this host back: the call is made in a process of its own, which says how it ends.
std::string FatalTextOf(const std::function<void()>& iCall)
{
  int ends[2] = {-1, -1};
  if (pipe(ends) != 0)
    return "";
  const pid_t child = fork();
  if (child == 0)
  {
    dup2(ends[1], STDERR_FILENO);
    iCall();
    _exit(0);
  }
  close(ends[1]);
  std::string said;
  char read1 = 0;
  while (read(ends[0], &read1, 1) == 1)
    said += read1;
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);

  const std::size_t text = said.find("AssertionFailed:"); // behind file and line
  if (!WIFSIGNALED(status) || text == std::string::npos)
    return "";
  return said.substr(text, said.find('\n', text) - text);
}

long LiveObjects()
{
  return otherhost::LiveObjects::Count().Sum();
}

} // namespace anyhost
