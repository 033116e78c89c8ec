// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Document.h"

#include "host/FeatureModeler/Rarities.h"

namespace voxhost
{

void Document::FeatureChanged(Feature& iFeature)
{
  iFeature._TimeStamp = ++_Clock;
  iFeature.SetOutOfDate(false); // so that what depends on it is visited, too, when it was out of date already
  PutOutOfDate(iFeature);
}

void Document::PutOutOfDate(Feature& iFeature)
{
  std::vector<Feature*> stack{&iFeature};
  while (!stack.empty())
  {
    Feature* const feature = stack.back();
    stack.pop_back();
    if (feature->Flag(Feature::kOutOfDate))
      continue; // and so is all that depends on it
    feature->SetOutOfDate(true);
    if (feature->_Father != nullptr)
      stack.push_back(feature->_Father);
    if (feature->_Referrers != nullptr)
      feature->_Referrers->Visit([&stack](const Referrer& referrer) { stack.push_back(referrer.feature); });
  }
}

void Document::OnUpdate(std::string_view iType, UpdateCallback iCallback)
{
  if (const FeatureType* const type = _Types->Find(iType))
    _Callbacks[type] = std::move(iCallback);
}

const Document::UpdateCallback* Document::CallbackFor(const FeatureType& iType) const
{
  for (const FeatureType* type = &iType; type != nullptr; type = type->Base())
    if (const auto found = _Callbacks.find(type); found != _Callbacks.end())
      return &found->second;
  return nullptr;
}

void Document::PushDependencies(Feature& iFeature, std::vector<Feature*>& ioStack) const
{
  const auto& attributes = iFeature.Type().Attributes();
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (attributes[i].HoldsComponents() || attributes[i].RefersToFeatures())
      for (Feature* const needed : iFeature.Features(static_cast<int>(i)))
        if (needed->IsOutOfDate() && !needed->Flag(Feature::kVisiting) && !needed->Flag(Feature::kTried))
          ioStack.push_back(needed);
}

HRESULT Document::RunUpdate(Feature& iFeature)
{
  const auto& attributes = iFeature.Type().Attributes();
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (attributes[i].HoldsComponents() || attributes[i].RefersToFeatures())
      for (Feature* const needed : iFeature.Features(static_cast<int>(i)))
        if (needed->IsOutOfDate() && !needed->Flag(Feature::kVisiting))
          return E_FAIL;
  if (iFeature.Flag(Feature::kUpdateFails))
    return E_FAIL;
  const UpdateCallback* const callback = CallbackFor(iFeature.Type());
  if (callback != nullptr && FAILED((*callback)(iFeature)))
    return E_FAIL;
  if (!iFeature.IsRemoved())
  {
    iFeature.SetOutOfDate(false);
    iFeature.SetMarked(false);
  }
  return S_OK;
}

HRESULT Document::Update(Feature& iFeature)
{
  if (iFeature._Document != this)
    return E_FAIL;
  if (!iFeature.IsOutOfDate())
    return S_OK;
  ++_UpdateDepth;
  std::vector<Feature*> stack{&iFeature};
  std::vector<Feature*> tried;
  while (!stack.empty())
  {
    Feature* const feature = stack.back();
    const bool isKnown = feature->IsRemoved() || feature->Flag(Feature::kTried);
    if (!isKnown && !feature->Flag(Feature::kVisiting))
    {
      feature->SetFlag(Feature::kVisiting, true); // comes back here when all that it needs is up to date
      PushDependencies(*feature, stack);
      continue;
    }
    stack.pop_back();
    if (isKnown)
      continue;
    RunUpdate(*feature);
    feature->SetFlag(Feature::kVisiting, false);
    feature->SetFlag(Feature::kTried, true);
    tried.push_back(feature);
  }
  for (Feature* const feature : tried)
    feature->SetFlag(Feature::kTried, false);
  const bool isUpToDate = !iFeature.IsRemoved() && !iFeature.IsOutOfDate();
  if (--_UpdateDepth == 0)
    BuryTheRemoved();
  return isUpToDate ? S_OK : E_FAIL;
}

HRESULT Document::UpdateAll()
{
  HRESULT result = S_OK;
  for (std::size_t i = 0; i < _ById.size(); ++i) // an update may add features
  {
    Feature* const feature = _ById[i];
    if (feature != nullptr && !feature->IsStartUp() && FAILED(Update(*feature)))
      result = E_FAIL;
  }
  return result;
}

void Document::BuryTheRemoved()
{
  const std::vector<Feature*> removed = std::move(_Removed);
  _Removed.clear();
  for (Feature* const feature : removed)
    feature->Release();
}

} // namespace voxhost
