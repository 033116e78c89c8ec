// SPDX-License-Identifier: MIT
// make_tet_deck COUNT OUT.inp
//   Writes a deck of about COUNT tetrahedra (C3D4): a box of hexahedra, each split in six, with named node sets, element
//   sets and surfaces, one material and one static step.   Example: make_tet_deck 1000000 box.inp
#include "TetDeck.h"

#include <cstdlib>
#include <iostream>

int main(int iCount, char** iArguments)
{
  const long wanted = iCount == 3 ? std::strtol(iArguments[1], nullptr, 10) : 0;
  if (wanted < 1)
  {
    std::cerr << "usage: make_tet_deck COUNT OUT.inp\n";
    return 2;
  }
  const TetDeck deck(wanted);
  if (!deck.Write(iArguments[2]))
  {
    std::cerr << iArguments[2] << ": cannot be written\n";
    return 1;
  }
  std::cout << deck.NodeCount() << " nodes, " << deck.ElementCount() << " tetrahedra\n";
  return 0;
}
