// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "VOXEAnalysisEntityInit.h"
#include "VOXEAnalysisEntityPreproSubscriber.h"
#include "VOXEAnalysisSetInit.h"
#include "VOXEAnalysisVisibility.h"

namespace voxbench
{

//! What every entity, set and feature of a document answers as the library's adaptors do: where it may stand, whether it
//! subscribes to the mesh, where it is visible.
class EntityInit final : public VOXEAnalysisEntityInit
{
};

class MeshSubscriber final : public VOXEAnalysisEntityPreproSubscriber
{
};

class SetInit final : public VOXEAnalysisSetInit
{
};

class Visibility final : public VOXEAnalysisVisibility
{
};

} // namespace voxbench
