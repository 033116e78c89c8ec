// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

//! A box of cells, each split in six tetrahedra, written as a deck with named sets and surfaces.
class TetDeck
{
public:
  //! @param iElements about how many tetrahedra; the box gets that many or a few more.
  explicit TetDeck(std::int64_t iElements);

  std::int64_t NodeCount() const { return (_Cells + 1) * (_Cells + 1) * (_Layers + 1); }
  std::int64_t ElementCount() const { return 6 * _Cells * _Cells * _Layers; }
  //! Members of the node set BOTTOM: the nodes 1 to this number.
  std::int64_t BottomCount() const { return (_Cells + 1) * (_Cells + 1); }

  //! @return false if the file cannot be written.
  bool Write(const std::string& iPath) const;

private:
  class Text;

  std::int64_t NodeAt(std::int64_t iX, std::int64_t iY, std::int64_t iZ) const
  {
    return 1 + iX + (_Cells + 1) * (iY + (_Cells + 1) * iZ);
  }
  void WriteNodes(Text& ioText) const;
  void WriteElements(Text& ioText) const;
  void WriteSets(Text& ioText) const;
  void WriteSurface(Text& ioText) const;
  void WriteAnalysis(Text& ioText) const;

  std::int64_t _Cells = 1;  //!< along x and y
  std::int64_t _Layers = 1; //!< along z
};

//! A deck on disk, as long as the object lives.
class TetDeckFile
{
public:
  explicit TetDeckFile(const TetDeck& iDeck);
  TetDeckFile(const TetDeckFile&) = delete;
  TetDeckFile& operator=(const TetDeckFile&) = delete;
  ~TetDeckFile();
  std::string Path() const { return _Path.string(); }

private:
  std::filesystem::path _Path;
};
