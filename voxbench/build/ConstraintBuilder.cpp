// SPDX-License-Identifier: MIT
// Linear equations and multiple point constraints: what ties degrees of freedom of nodes to each other.
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/TypeNames.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::string AliasOf(const char* iWhat, std::size_t iCount, std::int32_t iStep)
{
  const std::string alias = fmt::format("{} {}{}", iCount, iWhat, iCount == 1 ? "" : "s");
  return iStep > 0 ? fmt::format("{}, step {}", alias, iStep) : alias;
}

} // namespace

//! One feature for the equations of each step; every equation is an expression below it.
void ModelBuilder::BuildEquations(const Pair& iSet)
{
  const EquationTable& table = _Records.equations;
  for (std::size_t first = 0; first < table.size();)
  {
    std::size_t end = first;
    while (end < table.size() && table.steps[end] == table.steps[first])
      ++end;
    const Plan plan{kConstraintType, "LINEAR_CONSTRAINT", NextName("EQUATION"),
                    AliasOf("equation", end - first, table.steps[first])};
    const Pair made = MakeEntity(iSet, plan, "EQUATION", table.steps[first]);
    ApplyToUnion targets(_Model.Mesh());
    for (; first < end; ++first)
      AddEquation(made, first, targets);
    Finish(made, targets, {});
  }
}

void ModelBuilder::AddEquation(const Pair& iConstraint, std::size_t iRow, ApplyToUnion& ioTargets)
{
  const EquationTable& table = _Records.equations;
  voxhost::ExpressionData expression;
  for (std::size_t term = table.offsets[iRow]; term < table.offsets[iRow + 1]; ++term)
  {
    expression.terms.push_back({table.nodes[term], table.dofs[term], table.coefficients[term]});
    ioTargets.AddNode(table.nodes[term]);
  }
  const std::string name = fmt::format("Equation {}", iRow + 1);
  _Model.SetExpression(_Model.Create(iConstraint.object, "EXPRESSION", name), std::move(expression));
}

//! One feature per kind of constraint and step.
void ModelBuilder::BuildMultiPointConstraints(const Pair& iSet)
{
  const auto& all = _Records.multiPointConstraints;
  std::vector<bool> done(all.size());
  for (std::size_t first = 0; first < all.size(); ++first)
  {
    if (done[first])
      continue;
    ApplyToUnion targets(_Model.Mesh());
    std::vector<voxhost::Feature*> supports;
    std::size_t count = 0;
    for (std::size_t at = first; at < all.size(); ++at)
    {
      if (all[at].type != all[first].type || all[at].step != all[first].step)
        continue;
      done[at] = true;
      ++count;
      AddConstraint(all[at], targets, supports);
    }
    const Plan plan{kConstraintType, "LINEAR_CONSTRAINT", NextName("MPC"),
                    AliasOf((all[first].type + " constraint").c_str(), count, all[first].step)};
    Finish(MakeEntity(iSet, plan, "MPC", all[first].step), targets, supports);
  }
}

void ModelBuilder::AddConstraint(const MultiPointConstraint& iConstraint, ApplyToUnion& ioTargets,
                                 std::vector<voxhost::Feature*>& ioSupports) const
{
  for (const std::int32_t node : iConstraint.nodes)
    ioTargets.AddNode(node);
  for (const std::string& name : iConstraint.nodeSets)
  {
    const NamedGroup* const group = Find(_NodeGroups, name);
    if (group == nullptr || std::find(ioSupports.begin(), ioSupports.end(), group->feature) != ioSupports.end())
      continue;
    ioTargets.Add(group->members);
    ioSupports.push_back(group->feature);
  }
}

} // namespace voxbench
