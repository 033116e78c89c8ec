// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "SmallDocument.h"
#include "host/KnowledgeParameters/Parameter.h"

namespace
{

const voxhost::ParameterDeclaration kSection{VOXCkeContext::EnumType, {"Solid", "Shell", "Beam"}};

class KnowledgeParameter : public SmallDocument
{
protected:
  static VOXICkeParm_var Made(VOXICkeParm* iParameter)
  {
    const VOXICkeParm_var handle(static_cast<VOXBaseUnknown*>(iParameter));
    if (iParameter != nullptr)
      iParameter->Release();
    return handle;
  }
};

TEST_F(KnowledgeParameter, OfAnEnumerationAnswersNameAndIndexOfItsEntry)
{
  const VOXICkeParm_var parameter = Made(voxhost::NewParameter(kSection, std::int32_t{2}));
  EXPECT_TRUE(parameter->Value()->AsString() == "Shell");
  EXPECT_EQ(parameter->Value()->AsInteger(), 2);
}

TEST_F(KnowledgeParameter, OfAnEnumerationRefusesAnIndexThatHasNoEntry)
{
  const VOXICkeParm_var parameter = Made(voxhost::NewParameter(kSection, std::int32_t{2}));
  EXPECT_EQ(parameter->Valuate(4), E_FAIL);
  EXPECT_EQ(parameter->Valuate(-1), E_FAIL);
  EXPECT_EQ(parameter->Value()->AsInteger(), 2);
  EXPECT_EQ(parameter->Valuate(0), S_OK);
  EXPECT_TRUE(parameter->Value()->AsString() == "");
}

TEST_F(KnowledgeParameter, AnswersForItsTypeAndItsEntries)
{
  const VOXICkeParm_var parameter = Made(voxhost::NewParameter(kSection, std::int32_t{1}));
  const VOXICkeType_var type(parameter);
  ASSERT_FALSE(!type);
  EXPECT_EQ(type->IsAKindOfType(VOXCkeContext::EnumType), VOXCke::True);
  EXPECT_EQ(type->IsAKindOfType(VOXCkeContext::RealType), VOXCke::False);
  const VOXIEnumere_var entries(parameter);
  ASSERT_FALSE(!entries);
  EXPECT_EQ(entries->GetValueList(0).Size(), 3);
}

TEST_F(KnowledgeParameter, OfARealIsNoEnumeration)
{
  const VOXICkeParm_var parameter = Made(voxhost::NewParameter({VOXCkeContext::RealType, {}}, 1.5));
  EXPECT_TRUE(!VOXIEnumere_var(parameter));
}

TEST_F(KnowledgeParameter, WithoutAValueHasNoValueObject)
{
  const VOXICkeParm_var parameter = Made(voxhost::NewParameter(kSection, {}));
  EXPECT_TRUE(!parameter->Value());
}

TEST_F(KnowledgeParameter, IsNotMadeWithAValueOfAnotherKind)
{
  EXPECT_EQ(voxhost::NewParameter(kSection, 1.5), nullptr);
}

TEST_F(KnowledgeParameter, OfABasicComponentKeepsItsValueInTheComponent)
{
  voxhost::Feature& force = *New("Bolt", "B").Features("SonsList")[0];
  const VOXISamBasicComponent_var component(static_cast<VOXBaseUnknown*>(&force));
  VOXBaseUnknown_var value;
  ASSERT_EQ(component->GetValue(value, "", 0, 0, 0), S_OK);
  const VOXICkeParm_var parameter(value);
  ASSERT_FALSE(!parameter);
  EXPECT_EQ(parameter->Valuate(7), S_OK);
  EXPECT_EQ(force.Real("Value"), 7.);
}

} // namespace
