// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXMetaClass.h"
#include "ComponentRuntime/VOXTie.h"
#include "host/ComponentRuntime/Component.h"
#include "host/ComponentRuntime/MetaClasses.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <gtest/gtest.h>

inline constexpr IID IID_VOXIProbe = VOXGuidOfName("VOXIProbe");
inline constexpr IID IID_VOXIOther = VOXGuidOfName("VOXIOther");
inline constexpr IID IID_VOXIAbsent = VOXGuidOfName("VOXIAbsent");

class VOXIProbe : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIProbe)
  virtual int Answer() = 0;
};

class VOXIOther : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIOther)
  virtual int Other() = 0;
};

class VOXIAbsent : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIAbsent)
};

namespace
{

class Probe : public VOXIProbe
{
public:
  int Answer() override { return 42; }
};

class SecondProbe : public VOXIProbe
{
public:
  int Answer() override { return 43; }
};

// Carries the operation of VOXIOther without deriving from it; asks its component while it dies.
class TiedAdaptor : public VOXBaseUnknown
{
public:
  ~TiedAdaptor() override
  {
    const VOXHandle<VOXIProbe> probe(GetImpl(0));
    sawProbe = !!probe;
  }
  int Other()
  {
    const VOXHandle<VOXIProbe> probe(GetImpl(0));
    return !probe ? -1 : probe->Answer();
  }
  static inline bool sawProbe = true;
};

class TieOther : public VOXTieBase<VOXIOther, TiedAdaptor>
{
public:
  int Other() override { return Tied()->Other(); }
};

class ComponentRuntime : public testing::Test
{
protected:
  ComponentRuntime()
  {
    VOXDeclareLateType("RuntimeBase", nullptr);
    VOXDeclareLateType("RuntimeDerived", "RuntimeBase");
    VOXExtendLateType<VOXIProbe, Probe>("RuntimeBase");
    VOXTieLateType<VOXIOther, TieOther>("RuntimeDerived");
    component = voxhost::NewComponent("RuntimeDerived");
  }
  ~ComponentRuntime() override
  {
    voxhost::Faults::Disarm();
    if (component != nullptr)
      component->Release();
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  }

  voxhost::Ledger::Balance before = voxhost::Ledger::Read();
  VOXBaseUnknown* component = nullptr;
};

TEST_F(ComponentRuntime, ReachesEveryFaceFromEveryFace)
{
  const VOXHandle<VOXIProbe> probe(component);
  ASSERT_FALSE(!probe);
  const VOXHandle<VOXIOther> other(probe);
  ASSERT_FALSE(!other);
  EXPECT_EQ(other->Other(), 42) << "the tied adaptor reaches the component as well";
  EXPECT_EQ(VOXBaseUnknown_var(other)->GetImpl(0), component);
}

TEST_F(ComponentRuntime, AnswersTheSameQuestionWithTheSameObject)
{
  const VOXHandle<VOXIProbe> first(component);
  const VOXHandle<VOXIProbe> second(VOXHandle<VOXIOther>{component});
  EXPECT_EQ(first.Get(), second.Get());
}

TEST_F(ComponentRuntime, AgreesByNameAndByIdentifier)
{
  VOXBaseUnknown* const byName = static_cast<const VOXBaseUnknown*>(component)->QueryInterface("VOXIProbe");
  EXPECT_EQ(byName, VOXHandle<VOXIProbe>(component).Get());
  byName->Release();
  EXPECT_EQ(static_cast<const VOXBaseUnknown*>(component)->QueryInterface("VOXIAbsent"), nullptr);
}

TEST_F(ComponentRuntime, AnswersAMissWithNullAndTakesNoReference)
{
  const auto references = VOXComponentRuntime::References(component);
  void* face = component;
  EXPECT_EQ(component->QueryInterface(IID_VOXIAbsent, &face), E_NOINTERFACE);
  EXPECT_EQ(face, nullptr);
  EXPECT_EQ(component->QueryInterface(IID_VOXIProbe, nullptr), E_INVALIDARG);
  EXPECT_EQ(VOXComponentRuntime::References(component), references);
}

TEST_F(ComponentRuntime, CountsTheReferencesOfAllFacesTogether)
{
  VOXHandle<VOXIProbe> probe(component);
  EXPECT_EQ(component->Release(), 1ul);
  component = nullptr;
  EXPECT_EQ(probe->Answer(), 42) << "the handle keeps the component alive";
}

TEST_F(ComponentRuntime, AnswersNoQueryWhileItDies)
{
  EXPECT_EQ(VOXHandle<VOXIOther>(component)->Other(), 42);
  TiedAdaptor::sawProbe = true;
  component->Release();
  component = nullptr;
  EXPECT_FALSE(TiedAdaptor::sawProbe);
}

TEST_F(ComponentRuntime, TestsClassesAlongTheLateTypes)
{
  EXPECT_STREQ(component->IsA(), "RuntimeDerived");
  EXPECT_EQ(component->IsAKindOf("RuntimeBase"), 1);
  EXPECT_EQ(component->IsAKindOf("VOXBaseUnknown"), 1);
  EXPECT_EQ(component->IsAKindOf("RuntimeOther"), 0);
  EXPECT_EQ(component->IsAKindOf(nullptr), 0);
}

TEST_F(ComponentRuntime, LetsADerivedTypeReplaceTheExtensionOfItsBase)
{
  VOXDeclareLateType("RuntimeReplacing", "RuntimeBase");
  EXPECT_EQ((VOXExtendLateType<VOXIProbe, SecondProbe>("RuntimeReplacing")), S_OK);
  EXPECT_EQ((VOXExtendLateType<VOXIProbe, SecondProbe>("RuntimeReplacing")), S_FALSE);
  VOXBaseUnknown* const other = voxhost::NewComponent("RuntimeReplacing");
  EXPECT_EQ(VOXHandle<VOXIProbe>(other)->Answer(), 43);
  EXPECT_EQ(VOXHandle<VOXIProbe>(component)->Answer(), 42);
  other->Release();
}

TEST_F(ComponentRuntime, GivesNewFacesToComponentsThatAreMadeAfterTheDeclarationOnly)
{
  VOXDeclareLateType("RuntimeLate", nullptr);
  VOXBaseUnknown* const early = voxhost::NewComponent("RuntimeLate");
  VOXExtendLateType<VOXIProbe, Probe>("RuntimeLate");
  VOXBaseUnknown* const late = voxhost::NewComponent("RuntimeLate");
  EXPECT_TRUE(!VOXHandle<VOXIProbe>(early));
  EXPECT_FALSE(!VOXHandle<VOXIProbe>(late));
  early->Release();
  late->Release();
}

TEST_F(ComponentRuntime, RefusesDeclarationsThatDoNotFit)
{
  EXPECT_EQ(VOXDeclareLateType("RuntimeDerived", "RuntimeBase"), S_FALSE);
  EXPECT_EQ(VOXDeclareLateType("RuntimeDerived", nullptr), E_INVALIDARG);
  EXPECT_EQ(VOXDeclareLateType("RuntimeNew", "NoSuchType"), E_INVALIDARG);
  EXPECT_EQ((VOXExtendLateType<VOXIProbe, Probe>("NoSuchType")), E_INVALIDARG);
  EXPECT_EQ(voxhost::NewComponent("NoSuchType"), nullptr);
}

TEST_F(ComponentRuntime, AnswersNothingWhenAnExtensionCannotBeMade)
{
  voxhost::Faults::FailOperation("VOXBaseUnknown::operator new", 1, true);
  EXPECT_TRUE(!VOXHandle<VOXIProbe>(component));
  EXPECT_TRUE(!VOXHandle<VOXIOther>(component));
  voxhost::Faults::Disarm();
  EXPECT_FALSE(!VOXHandle<VOXIProbe>(component));
}

TEST_F(ComponentRuntime, FindsEachOfManyInterfacesAndNoOther)
{
  static std::vector<std::string> names;
  VOXDeclareLateType("RuntimeWide", nullptr);
  for (int i = 0; i < 300; ++i)
    names.push_back("VOXIWide" + std::to_string(i));
  for (const std::string& name : names)
    VOXDeclareExtension("RuntimeWide", VOXGuidOfName(name.c_str()), name.c_str(),
                        []() -> VOXBaseUnknown* { return new Probe; });
  VOXBaseUnknown* const wide = voxhost::NewComponent("RuntimeWide");
  for (const std::string& name : names)
  {
    void* face = nullptr;
    ASSERT_EQ(wide->QueryInterface(VOXGuidOfName(name.c_str()), &face), S_OK) << name;
    static_cast<VOXBaseUnknown*>(face)->Release();
  }
  EXPECT_TRUE(!VOXHandle<VOXIAbsent>(wide));
  wide->Release();
}

TEST_F(ComponentRuntime, GivesCopiesAnIdentityOfTheirOwn)
{
  Probe original;
  original.AddRef();
  original.SetImpl(component);
  const Probe copy(original);
  EXPECT_EQ(copy.GetImpl(0), &copy);
  EXPECT_EQ(original.SetImpl(nullptr), component);
  EXPECT_EQ(original.Release(), 1ul);
}

TEST_F(ComponentRuntime, AnswersTheAutomationOperationsWithNothing)
{
  unsigned int count = 7;
  VOXTypeInfo* info = reinterpret_cast<VOXTypeInfo*>(this);
  EXPECT_EQ(component->GetTypeInfoCount(&count), E_NOTIMPL);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(component->GetTypeInfo(0, 0, &info), E_NOTIMPL);
  EXPECT_EQ(info, nullptr);
  EXPECT_EQ(component->GetIDsOfNames(IID_VOXIProbe, nullptr, 0, 0, nullptr), E_NOTIMPL);
  EXPECT_EQ(component->Invoke(0, IID_VOXIProbe, 0, 0, nullptr), E_NOTIMPL);
  EXPECT_EQ(component->IsNull(), 0);
  EXPECT_EQ(component->ChangeComponentState(VOXStateIdle, VOXStateActive, nullptr), S_OK);
}

TEST(MetaClasses, AreRegisteredOnceAndKeepWhatTheyWereTold)
{
  VOXMetaClass* const meta =
      fct_RetrieveMetaObject("RuntimeMeta", VOXTypeDataExtension, VOXBaseUnknown::MetaObject(), "Late", "lib", 40);
  EXPECT_EQ(fct_RetrieveMetaObject("RuntimeMeta", VOXTypeInterface, nullptr, "", "", 1), meta);
  EXPECT_STREQ(meta->IsA(), "RuntimeMeta");
  EXPECT_EQ(meta->IsAKindOf("VOXBaseUnknown"), 1);
  EXPECT_TRUE(meta->GetClassId() == VOXGuidOfName("RuntimeMeta"));
  EXPECT_EQ(voxhost::FindMetaClass("RuntimeMeta")->objectSize, 40);
  EXPECT_EQ(voxhost::FindMetaClass("NoSuchClass"), nullptr);
}

TEST(MetaClasses, AComponentHasADescriptionWhenNoClassCanBeRegistered)
{
  ASSERT_EQ(VOXDeclareLateType("RuntimeDescribed", nullptr), S_OK);
  VOXBaseUnknown* const component = voxhost::NewComponent("RuntimeDescribed");
  ASSERT_NE(component, nullptr);
  voxhost::Faults::FailOperation("fct_RetrieveMetaObject", 1, true);
  EXPECT_STREQ(component->IsA(), "RuntimeDescribed");
  EXPECT_EQ(component->IsAKindOf("VOXBaseUnknown"), 1);
  EXPECT_NE(VOXBaseUnknown::MetaObject(), nullptr);
  voxhost::Faults::Disarm();
  component->Release();
}

} // namespace
