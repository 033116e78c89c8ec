// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/TypeCatalogue.h"

namespace voxhost
{

class Feature;

//! Makes a type of the knowledge layer: a component that carries VOXICkeType, and for an enumeration VOXIEnumere.
//! @return one reference for the caller; null without memory.
VOX_HOST_API VOXICkeType* NewKnowledgeType(const ParameterDeclaration& iDeclaration);

//! Makes a parameter: a component that carries VOXICkeParm, VOXICkeType for its type, and for an enumeration VOXIEnumere.
//! @param iValue its value: real, boolean, integer, text, or none. @return one reference for the caller; null for a value
//! that does not fit, or without memory.
VOX_HOST_API VOXICkeParm* NewParameter(const ParameterDeclaration& iDeclaration, const Value& iValue);

//! Makes a parameter whose value is kept in an attribute of a feature; it loses its value with the feature.
//! @return one reference for the caller; null without memory.
VOX_HOST_API VOXICkeParm* NewParameter(const ParameterDeclaration& iDeclaration, Feature& iFeature, int iAttribute);

//! What a parameter or a type was made from; borrowed; null when the component is neither.
VOX_HOST_API const ParameterDeclaration* KnowledgeTypeOf(const VOXBaseUnknown* iFace);

} // namespace voxhost
