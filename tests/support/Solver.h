// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace voxtest
{

//! The text of a deck of the package calculix-ccx-test by name, such as "beamp"; "" when there is none.
std::string PackagedDeck(const std::string& iName);

//! A deck with further cards before the end of each of its steps, such as "*NODE FILE\nU\n".
std::string WithCardsInEachStep(const std::string& iDeck, const std::string& iCards);

//! A deck that writes its results in binary form.
std::string WithBinaryResults(std::string iDeck);

//! What the CalculiX solver (package calculix-ccx; environment VOX_SOLVER names another program) made of a deck. Its files
//! live as long as the object.
class Solved
{
public:
  //! @param iDeck text of a deck that includes no files.
  explicit Solved(const std::string& iDeck);
  ~Solved();
  Solved(const Solved&) = delete;
  Solved& operator=(const Solved&) = delete;

  bool Ran() const { return _Ran; }               //!< the solver came to its end
  const std::string& Log() const { return _Log; } //!< what it said, or why it could not be run
  std::filesystem::path Deck() const { return _Folder / "job.inp"; }
  std::filesystem::path Results() const { return _Folder / "job.frd"; }
  std::filesystem::path Tables() const { return _Folder / "job.dat"; }

private:
  std::filesystem::path _Folder;
  bool _Ran = false;
  std::string _Log;
};

} // namespace voxtest
