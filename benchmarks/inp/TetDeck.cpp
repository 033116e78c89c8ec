// SPDX-License-Identifier: MIT
#include "TetDeck.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <system_error>
#include <unistd.h>

class TetDeck::Text
{
public:
  explicit Text(const std::string& iPath) : _File(std::fopen(iPath.c_str(), "w"), &std::fclose) {}

  bool Good() const { return _File != nullptr && std::ferror(_File.get()) == 0; }
  void Card(const char* iLine) { std::fprintf(_File.get(), "%s\n", iLine); }
  void Node(std::int64_t iId, double iX, double iY, double iZ)
  {
    std::fprintf(_File.get(), "%lld, %.9g, %.9g, %.9g\n", static_cast<long long>(iId), iX, iY, iZ);
  }
  void Line(std::int64_t iId, std::initializer_list<std::int64_t> iOthers)
  {
    std::fprintf(_File.get(), "%lld", static_cast<long long>(iId));
    for (const std::int64_t other : iOthers)
      std::fprintf(_File.get(), ", %lld", static_cast<long long>(other));
    std::fputc('\n', _File.get());
  }
  void Side(std::int64_t iId, int iSide)
  {
    std::fprintf(_File.get(), "%lld, S%d\n", static_cast<long long>(iId), iSide);
  }
  void Ids(std::int64_t iFirst, std::int64_t iLast, std::int64_t iStep)
  {
    int inLine = 0;
    for (std::int64_t id = iFirst; id <= iLast; id += iStep)
    {
      const bool lineFull = ++inLine == 16 || id + iStep > iLast;
      std::fprintf(_File.get(), lineFull ? "%lld\n" : "%lld, ", static_cast<long long>(id));
      inLine = lineFull ? 0 : inLine;
    }
  }

private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> _File;
};

TetDeck::TetDeck(std::int64_t iElements)
{
  _Cells = std::max<std::int64_t>(1, std::llround(std::cbrt(static_cast<double>(iElements) / 6.)));
  _Layers = (iElements + 6 * _Cells * _Cells - 1) / (6 * _Cells * _Cells);
}

bool TetDeck::Write(const std::string& iPath) const
{
  Text text(iPath);
  if (!text.Good())
    return false;
  text.Card("*HEADING\nA box of tetrahedra\n** generated");
  WriteNodes(text);
  WriteElements(text);
  WriteSets(text);
  WriteSurface(text);
  WriteAnalysis(text);
  return text.Good();
}

void TetDeck::WriteNodes(Text& ioText) const
{
  ioText.Card("*NODE, NSET=NALL");
  const double size = 1. / static_cast<double>(_Cells);
  for (std::int64_t z = 0; z <= _Layers; ++z)
    for (std::int64_t y = 0; y <= _Cells; ++y)
      for (std::int64_t x = 0; x <= _Cells; ++x)
        ioText.Node(NodeAt(x, y, z), size * static_cast<double>(x), size * static_cast<double>(y),
                    size * static_cast<double>(z));
}

void TetDeck::WriteElements(Text& ioText) const
{
  // Six tetrahedra around the diagonal from corner 0 to corner 6.
  static constexpr int kPairs[6][2] = {{1, 2}, {2, 3}, {3, 7}, {7, 4}, {4, 5}, {5, 1}};
  ioText.Card("*ELEMENT, TYPE=C3D4, ELSET=EALL");
  std::int64_t id = 0;
  for (std::int64_t z = 0; z < _Layers; ++z)
    for (std::int64_t y = 0; y < _Cells; ++y)
      for (std::int64_t x = 0; x < _Cells; ++x)
      {
        const std::array<std::int64_t, 8> corners = {
            NodeAt(x, y, z),     NodeAt(x + 1, y, z),     NodeAt(x + 1, y + 1, z),     NodeAt(x, y + 1, z),
            NodeAt(x, y, z + 1), NodeAt(x + 1, y, z + 1), NodeAt(x + 1, y + 1, z + 1), NodeAt(x, y + 1, z + 1)};
        for (const auto& pair : kPairs)
          ioText.Line(++id, {corners[0], corners[static_cast<std::size_t>(pair[0])],
                             corners[static_cast<std::size_t>(pair[1])], corners[6]});
      }
}

void TetDeck::WriteSets(Text& ioText) const
{
  ioText.Card("*NSET, NSET=BOTTOM");
  ioText.Ids(1, BottomCount(), 1);
  ioText.Card("*NSET, NSET=TOP");
  ioText.Ids(NodeCount() - BottomCount() + 1, NodeCount(), 1);
  ioText.Card("*ELSET, ELSET=LOWER");
  ioText.Ids(1, ElementCount() / 2, 1);
  ioText.Card("*ELSET, ELSET=SIXTH");
  ioText.Ids(6, ElementCount(), 6);
}

void TetDeck::WriteSurface(Text& ioText) const
{
  ioText.Card("*SURFACE, NAME=FLOOR, TYPE=ELEMENT");
  for (std::int64_t cell = 0; cell < _Cells * _Cells; ++cell)
    for (const std::int64_t tetrahedron : {1, 2})
      ioText.Side(6 * cell + tetrahedron, 1);
}

void TetDeck::WriteAnalysis(Text& ioText) const
{
  ioText.Card("*MATERIAL, NAME=STEEL\n*ELASTIC\n210000., .3\n*SOLID SECTION, ELSET=EALL, MATERIAL=STEEL");
  ioText.Card("*BOUNDARY\nBOTTOM, 1, 3\n*STEP\n*STATIC\n*CLOAD\nTOP, 3, 1.\n*NODE FILE\nU\n*END STEP");
}

TetDeckFile::TetDeckFile(const TetDeck& iDeck)
    : _Path(std::filesystem::temp_directory_path() / ("tet_deck_" + std::to_string(getpid()) + ".inp"))
{
  iDeck.Write(_Path.string());
}

TetDeckFile::~TetDeckFile()
{
  std::error_code ignored;
  std::filesystem::remove(_Path, ignored);
}
