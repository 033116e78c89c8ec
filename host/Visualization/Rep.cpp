// SPDX-License-Identifier: MIT
#include "Visualization/VOXRep.h"

#include "Visualization/VOXMathAxis.h"
#include "host/Instruments/Faults.h"

#include <new>
#include <vector>

const VOXMathAxis VOXMathOIJK{{0., 0., 0.}, {1., 0., 0.}, {0., 1., 0.}, {0., 0., 1.}};

struct VOXBagData
{
  std::vector<VOXRep*> children;
};

VOXRep::VOXRep() = default;

VOXRep::~VOXRep() = default;

int VOXRep::GetNumberOfChildren() const
{
  return 0;
}

void* VOXRep::operator new(std::size_t iSize, const char*, void*, int) noexcept
{
  return voxhost::Faults::Enter("VOXRep::operator new") ? nullptr : ::operator new(iSize, std::nothrow);
}

void VOXRep::operator delete(void* iMemory)
{
  ::operator delete(iMemory);
}

void VOXRep::operator delete(void* iMemory, const char*, void*, int) noexcept
{
  ::operator delete(iMemory);
}

VOX3DBagRep::VOX3DBagRep() : _Data(new VOXBagData) {}

VOX3DBagRep::~VOX3DBagRep()
{
  for (VOXRep* const child : _Data->children)
    delete child;
  delete _Data;
}

int VOX3DBagRep::GetNumberOfChildren() const
{
  return static_cast<int>(_Data->children.size());
}

void VOX3DBagRep::AddChild(VOXRep* iChild)
{
  _Data->children.push_back(iChild);
}
