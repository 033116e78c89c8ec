// SPDX-License-Identifier: MIT
// Bytes that change on a disk: a document is then refused, or it does not matter to it.
#include "DocumentText.h"
#include "RunProgram.h"
#include "tests/support/Sanitized.h"
#include "voxbench/store/DocumentFile.h"

#include <fstream>
#include <gmock/gmock.h>

using voxbench::LoadedModel;

namespace
{

//! Changes bits here and there, and opens what that leaves.
void ChangeBitsOf(const std::string& iDeck, std::size_t iStep)
{
  const std::string file = voxtest::TemporaryFile("damaged.voxdoc", "");
  LoadedModel model;
  voxtest::OpenDeck(iDeck, model);
  ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
  const std::string whole = voxtest::TextOfDocument(model);
  const std::string bytes = voxtest::ReadText(file);
  std::size_t refused = 0;
  std::size_t tried = 0;
  for (std::size_t place = 0; place < bytes.size(); place += iStep, ++tried)
  {
    std::string changed = bytes;
    changed[place] = static_cast<char>(changed[place] ^ 1 << place / iStep % 8);
    std::ofstream(file, std::ios::binary) << changed;
    LoadedModel opened;
    const std::string reason = voxbench::ReadDocumentFile(file, opened, {});
    EXPECT_EQ(voxtest::ReadText(file), changed) << place;
    if (reason.empty())
    {
      EXPECT_EQ(voxtest::TextOfDocument(opened), whole) << "byte " << place;
      continue;
    }
    ++refused;
    EXPECT_TRUE(reason.starts_with(file + ": ") && reason.ends_with(".")) << reason;
  }
  EXPECT_GT(refused, tried / 4);
}

TEST(DamagedDocuments, AreRefusedOrTheSame)
{
  ChangeBitsOf("plate_on_block.inp", 211);
}

TEST(DamagedDocumentsSlow, AreRefusedOrTheSameWhereverABitChanges)
{
  ChangeBitsOf("joined.inp", voxtest::kIsSanitized ? 211 : 23);
}

} // namespace
