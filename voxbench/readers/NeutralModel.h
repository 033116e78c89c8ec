// SPDX-License-Identifier: MIT
#pragma once
#include "Column.h"
#include "Diagnostics.h"
#include "ElementType.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

//! The neutral records: what a reader takes out of a finite-element file, whatever its format.
//!
//! - Plain data without behaviour beyond look-ups. Numbers keep the units of the file: no conversion.
//! - Node, element and connectivity entries are the ids of the file (32-bit, positive), never indexes.
//! - Names are upper-cased as the solver does; quoted names keep their case and lose their quotes.
//! - `step` fields: 0 outside of the steps, k inside the k-th.
//! - Every record tells its place (`Where`); a row of a table tells its line, its file being that of its card or of an
//!   included file.
namespace voxbench
{

constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

//! From row `firstRow` on, up to the next run, the rows were defined by the card at `where`.
struct SourceRun
{
  std::int32_t firstRow = 0;
  Where where;
};

//! Nodes, ascending by id, each id once.
struct NodeTable
{
  Column<std::int32_t> ids;
  Column<double> xyz;             //!< three per node, interleaved
  std::vector<SourceRun> sources; //!< ascending by row

  std::size_t size() const { return ids.size(); }
  //! @return the row of a node id, -1 if there is none. O(1) when the ids have no holes, else O(log n).
  std::int64_t Find(std::int32_t iId) const;
  //! @return the card that defined the node of that row.
  Where WhereOf(std::size_t iRow) const;
};

//! Elements, ascending by id, each id once.
struct ElementTable
{
  Column<std::int32_t> ids;
  Column<std::uint16_t> types;    //!< index into NeutralModel::elementTypes
  Column<std::uint32_t> offsets;  //!< size() + 1 entries: nodes of row r are connectivity[offsets[r] .. offsets[r + 1])
  Column<std::int32_t> nodes;     //!< the connectivity, node ids in the order of the file
  std::vector<SourceRun> sources; //!< ascending by row

  std::size_t size() const { return ids.size(); }
  //! @return the row of an element id, -1 if there is none. O(1) when the ids have no holes, else O(log n).
  std::int64_t Find(std::int32_t iId) const;
  std::span<const std::int32_t> NodesOf(std::size_t iRow) const
  {
    return {nodes.data() + offsets[iRow], offsets[iRow + 1] - offsets[iRow]};
  }
  //! @return the card that defined the element of that row.
  Where WhereOf(std::size_t iRow) const;
};

//! A named set of nodes or of elements. A node set and an element set may share a name.
struct NamedSet
{
  std::string name;
  Column<std::int32_t> members; //!< ascending, unique, only ids that exist
  Where where;                  //!< the first card that names members
  bool isPart = false;          //!< another set or surface is made of it
};

enum class SurfaceKind : std::uint8_t
{
  Face,
  Edge,
  Node
};

//! A named surface. It may share its name with a set, and a node surface with an element surface.
//!
//! Sides are numbered as in the file, `S1` being 1. On shells and membranes 1 is also SNEG and 2 is also SPOS (both
//! faces), 3 and more are edges. On plane stress, plane strain and axisymmetric elements 1 to 4 are edges; the whole-area
//! labels N and P are the faces 5 and 6.
struct Surface
{
  std::string name;
  SurfaceKind kind = SurfaceKind::Face; //!< Edge if all sides are edges, Face if any is a face
  Column<std::int32_t> members;         //!< element ids, or node ids of a node surface; ascending by member, then side
  Column<std::uint8_t> sides;           //!< as many as members; 0 in node surfaces
  Where where;
};

struct Parameter
{
  std::string key;   //!< upper case, no blanks
  std::string value; //!< "" for a flag; upper case unless quoted; file names keep their case
};

struct DataLine
{
  std::int32_t line = 0;
  std::vector<std::string> fields; //!< upper case, no blanks, unless quoted; no fields for a line left blank
};

//! A card as it stands: keyword, parameters and data lines.
struct CardRecord
{
  std::string keyword; //!< upper case without star and blanks, such as "SOLIDSECTION"
  std::vector<Parameter> parameters;
  std::vector<DataLine> data;
  Where where;
  std::int32_t step = 0;

  bool Has(std::string_view iKey) const;
  //! @return the value of a parameter; "" if it is missing or a flag. Borrowed.
  const std::string& Get(std::string_view iKey) const;
  //! @return the number in a data field, iDefault if it is missing, blank or no number.
  double Number(std::size_t iLine, std::size_t iField, double iDefault = kNoValue) const;
  //! @return the text of a data field, "" if it is missing. Borrowed.
  const std::string& Text(std::size_t iLine, std::size_t iField) const;
};

//! A material; its property cards (ELASTIC, DENSITY, PLASTIC, ...) in the order of the file.
struct Material
{
  std::string name;
  std::vector<CardRecord> properties;
  Where where;
};

//! A contact interaction; its property cards (SURFACEBEHAVIOR, FRICTION, ...) in the order of the file.
struct Interaction
{
  std::string name;
  std::vector<CardRecord> properties;
  Where where;
};

enum class SectionKind : std::uint8_t
{
  Solid,
  Shell,
  Membrane,
  Beam,
  Fluid,
  Spring,
  Dashpot,
  Mass,
  Gap,
  User
};

//! What an element set is made of.
struct Section
{
  SectionKind kind = SectionKind::Solid;
  std::string elementSet;
  std::string material;    //!< "" if none; of a composite shell see the layers
  std::string orientation; //!< "" if none
  std::string profile;     //!< beam profile (RECT, CIRC, PIPE, BOX, ...) or fluid element type
  double value = kNoValue; //!< first number: thickness, stiffness, mass, first beam dimension
  struct Layer
  {
    double thickness = kNoValue;
    std::string material;
    std::string orientation;
  };
  std::vector<Layer> layers; //!< of composite shells, from the bottom up
  CardRecord card;           //!< all that the file says
};

//! One data line of an applied card: to what, which label or degrees of freedom, which values.
struct AppliedRow
{
  std::int32_t id = 0;       //!< node or element id; 0 when applied to a name or to the whole model
  std::int32_t name = -1;    //!< set or surface, an index into NeutralModel::names; -1 when applied to an id
  std::int32_t label = -1;   //!< P1, GRAV, F3FC, ..., an index into NeutralModel::names; -1 if none
  std::int32_t firstDof = 0; //!< degrees of freedom as numbered in the file; 0 if none
  std::int32_t lastDof = 0;
  std::int32_t line = 0;
  std::uint32_t firstValue = 0; //!< into AppliedCard::values
  std::uint32_t valueCount = 0;
};

//! A card that applies values to nodes, elements, sets or surfaces: a load, a restraint, an initial condition.
struct AppliedCard
{
  std::string keyword; //!< CLOAD, DLOAD, BOUNDARY, INITIALCONDITIONS, ...
  std::string type;    //!< TYPE of an initial condition or of a submodel boundary; "" else
  std::string amplitude;
  std::vector<Parameter> parameters;
  std::vector<AppliedRow> rows;
  Column<double> values;
  Where where;
  std::int32_t step = 0;
  bool replaces = false; //!< OP=NEW: takes the place of all earlier ones of its keyword

  std::span<const double> ValuesOf(const AppliedRow& iRow) const
  {
    return {values.data() + iRow.firstValue, iRow.valueCount};
  }
};

//! Whether an applied card acts on nodes (CLOAD, BOUNDARY, ...) or on elements and their sides (DLOAD, FILM, ...).
bool ActsOnNodes(const AppliedCard& iCard);

//! Linear constraints: the terms of row r are [offsets[r] .. offsets[r + 1]) of the three parallel arrays.
struct EquationTable
{
  Column<std::uint32_t> offsets; //!< empty, or size() + 1 entries
  Column<std::int32_t> nodes;
  Column<std::int32_t> dofs;
  Column<double> coefficients;
  Column<Where> wheres;
  Column<std::int32_t> steps;

  std::size_t size() const { return wheres.size(); }
};

//! A multiple point constraint by type (MEANROT, PLANE, STRAIGHT, DIST, BEAM, a user's...).
struct MultiPointConstraint
{
  std::string type;
  Column<std::int32_t> nodes;        //!< node ids in the order of the file, repetitions kept
  std::vector<std::string> nodeSets; //!< the named ones
  Where where;
  std::int32_t step = 0;
};

struct Amplitude
{
  std::string name;
  Column<double> times;
  Column<double> values; //!< as many as times
  CardRecord card;       //!< parameters only
};

//! A local axis system with a name (ORIENTATION) or for the nodes of a set (TRANSFORM).
struct LocalAxes
{
  std::string name;         //!< "" for a transform
  std::string nodeSet;      //!< of a transform
  bool cylindrical = false; //!< else rectangular
  double first[3] = {kNoValue, kNoValue, kNoValue};
  double second[3] = {kNoValue, kNoValue, kNoValue};
  CardRecord card;
};

enum class ConnectionKind : std::uint8_t
{
  Tie,
  ContactPair,
  Coupling,
  DistributingCoupling,
  RigidBody,
  PreTension,
  CyclicSymmetry,
  Clearance
};

//! What joins parts of the model.
struct Connection
{
  ConnectionKind kind = ConnectionKind::Tie;
  std::string name;
  std::string interaction;          //!< of a contact pair
  std::string dependent;            //!< slave surface, or the set or surface that follows the reference node
  std::string independent;          //!< master surface
  std::int32_t referenceNode = 0;   //!< 0 if none
  std::int32_t rotationNode = 0;    //!< 0 if none
  std::string orientation;          //!< "" if none
  std::vector<CardRecord> behavior; //!< KINEMATIC or DISTRIBUTING of a coupling
  CardRecord card;
};

//! A step of the analysis.
struct Step
{
  CardRecord card;      //!< STEP
  CardRecord procedure; //!< STATIC, FREQUENCY, ...; keyword "" if the step names none
  bool perturbation = false;
  bool nonlinearGeometry = false;
  Where end; //!< END STEP; line 0 if it is missing
};

struct OutputRequest
{
  std::string keyword;                //!< NODEPRINT, ELFILE, CONTACTFILE, SECTIONPRINT, ...
  std::string set;                    //!< set or surface; "" for all
  std::vector<std::string> variables; //!< U, S, RF, ...
  CardRecord card;
};

//! All that a reader found.
struct NeutralModel
{
  std::vector<std::string> files; //!< as opened, the main file first
  std::vector<std::string> title; //!< heading lines as they stand

  NodeTable nodes;
  ElementTable elements;
  std::vector<ElementType> elementTypes; //!< the types in use
  std::vector<NamedSet> nodeSets;        //!< in the order of first appearance, as all vectors here
  std::vector<NamedSet> elementSets;
  std::vector<Surface> surfaces;

  std::vector<std::string> names; //!< the names and labels of applied rows
  std::vector<Material> materials;
  std::vector<Interaction> interactions;
  std::vector<Section> sections;
  std::vector<AppliedCard> loads;
  std::vector<AppliedCard> restraints;
  std::vector<AppliedCard> initialConditions;
  std::vector<AppliedCard> nodalThicknesses;
  EquationTable equations;
  std::vector<MultiPointConstraint> multiPointConstraints;
  std::vector<Amplitude> amplitudes;
  std::vector<LocalAxes> orientations;
  std::vector<LocalAxes> transforms;
  std::vector<Connection> connections;
  std::vector<Step> steps;
  std::vector<OutputRequest> outputRequests;
  std::vector<CardRecord> otherCards; //!< understood cards without a record of their own: controls, constants, ...

  Diagnostics diagnostics;

  //! @return the set or surface of that name, null if there is none. Borrowed.
  const NamedSet* FindNodeSet(std::string_view iName) const;
  const NamedSet* FindElementSet(std::string_view iName) const;
  const Surface* FindSurface(std::string_view iName) const;
};

} // namespace voxbench
