// SPDX-License-Identifier: MIT
#pragma once
#include "Reading.h"

#include <initializer_list>
#include <string>
#include <string_view>

//! What each card does. A handler gets the card without data lines and takes those itself.
namespace voxbench::inp
{

using Handler = void (*)(Reading& ioReading, CardRecord& ioCard);

//! @return the handler of a keyword, null if the keyword is not understood.
Handler FindHandler(const std::string& iKeyword);

//! The keyword that an accepted other spelling stands for (FLUIDSECTIONS: FLUIDSECTION), else the keyword itself.
std::string CanonicalKeyword(const std::string& iKeyword);

// MeshCards.cpp
void ReadNodes(Reading& ioReading, CardRecord& ioCard);
void ReadElements(Reading& ioReading, CardRecord& ioCard);
void ReadUserElement(Reading& ioReading, CardRecord& ioCard);

// SetCards.cpp
void ReadNodeSet(Reading& ioReading, CardRecord& ioCard);
void ReadElementSet(Reading& ioReading, CardRecord& ioCard);
void ReadSurface(Reading& ioReading, CardRecord& ioCard);

// PropertyCards.cpp
void ReadMaterial(Reading& ioReading, CardRecord& ioCard);
void ReadInteraction(Reading& ioReading, CardRecord& ioCard);
void ReadInteractionChange(Reading& ioReading, CardRecord& ioCard);
void ReadProperty(Reading& ioReading, CardRecord& ioCard);
void ReadSection(Reading& ioReading, CardRecord& ioCard);
void ReadAmplitude(Reading& ioReading, CardRecord& ioCard);
void ReadOrientation(Reading& ioReading, CardRecord& ioCard);
void ReadTransform(Reading& ioReading, CardRecord& ioCard);

// AppliedCards.cpp
void ReadLoad(Reading& ioReading, CardRecord& ioCard);
void ReadRestraint(Reading& ioReading, CardRecord& ioCard);
void ReadInitialConditions(Reading& ioReading, CardRecord& ioCard);
void ReadNodalThickness(Reading& ioReading, CardRecord& ioCard);

// ConnectionCards.cpp
void ReadEquation(Reading& ioReading, CardRecord& ioCard);
void ReadMultiPointConstraint(Reading& ioReading, CardRecord& ioCard);
void ReadConnection(Reading& ioReading, CardRecord& ioCard);
void ReadCouplingBehavior(Reading& ioReading, CardRecord& ioCard);

// StepCards.cpp
void ReadHeading(Reading& ioReading, CardRecord& ioCard);
void ReadStep(Reading& ioReading, CardRecord& ioCard);
void ReadEndStep(Reading& ioReading, CardRecord& ioCard);
void ReadProcedure(Reading& ioReading, CardRecord& ioCard);
void ReadOutputRequest(Reading& ioReading, CardRecord& ioCard);
void ReadOtherCard(Reading& ioReading, CardRecord& ioCard);
void RefuseAssembly(Reading& ioReading, CardRecord& ioCard);

//! Reports the parameters of a card that the reader makes no use of.
void ReportUnusedParameters(Reading& ioReading, const CardRecord& iCard, std::initializer_list<std::string_view> iUsed);

// FinishMesh.cpp, FinishSets.cpp: what can only be done when all cards are in.
void FinishMesh(Reading& ioReading);
void FinishSets(Reading& ioReading);
void FinishSurfaces(Reading& ioReading);

// MissingTargets.cpp: one finding per card that names nodes or elements which the deck does not define.
class IdPresence;
void ReportMissingTargets(Reading& ioReading, const IdPresence& iNodes, const IdPresence& iElements);

} // namespace voxbench::inp
