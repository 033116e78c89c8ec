// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

#include <cstddef>

class VOXPathElement;
class VOXPickPath;
class VOXRepPath;

//! A graphic representation. Implemented by: the host's visualisation layer.
//! - Made with the operator new below and freed by its own operator delete.
class VOX_HOST_API VOXRep
{
public:
  VOXRep();
  VOXRep(const VOXRep&) = delete;
  VOXRep& operator=(const VOXRep&) = delete;
  virtual ~VOXRep();

  //! Number of representations under this one.
  virtual int GetNumberOfChildren() const;

  //! Memory for a representation. @param iSize bytes. @param iSite, iPool, iFlags always null, null and 0. @return null
  //! when there is none (the constructor is then not run).
  static void* operator new(std::size_t iSize, const char* iSite, void* iPool, int iFlags) noexcept;
  static void operator delete(void* iMemory); //!< gives that memory back
  //! Gives that memory back when a constructor throws.
  static void operator delete(void* iMemory, const char* iSite, void* iPool, int iFlags) noexcept;
};

struct VOXBagData;

//! A bag of representations in space; empty when made. It owns what is added to it.
class VOX_HOST_API VOX3DBagRep : public VOXRep
{
public:
  VOX3DBagRep();
  ~VOX3DBagRep() override;

  int GetNumberOfChildren() const override;

  //! Puts a representation into the bag, which deletes it with itself.
  void AddChild(VOXRep* iChild);

private:
  VOXBagData* _Data;
};
