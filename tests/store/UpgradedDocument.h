// SPDX-License-Identifier: MIT
#pragma once
#include "DocumentText.h"
#include "JsonSchema.h"
#include "RunProgram.h"
#include "voxbench/store/DocumentFile.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace voxtest
{

//! A copy of a document that a former release wrote, alone in a folder.
class UpgradedDocument : public testing::Test
{
protected:
  void SetUp() override { TakeRelease(1); }

  void TakeRelease(int iRelease)
  {
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string name = "layered.release-" + std::to_string(iRelease) + ".voxdoc";
    std::filesystem::copy_file(DataFile(name), file);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    original = ReadText(file);
  }

  RunResult RunUpgrade(const std::vector<std::string>& iOptions = {}) const
  {
    std::vector<std::string> arguments{"upgrade", file};
    arguments.insert(arguments.end(), iOptions.begin(), iOptions.end());
    return RunInProcess(arguments);
  }

  nlohmann::json UpgradeJson(std::vector<std::string> iOptions = {}) const
  {
    iOptions.emplace_back("--json");
    nlohmann::json output = nlohmann::json::parse(RunUpgrade(iOptions).out);
    EXPECT_EQ(Violations(SchemaOf("upgrade"), output), std::vector<std::string>{});
    return output;
  }

  std::size_t FilesInFolder() const
  {
    const std::filesystem::directory_iterator files(std::filesystem::path(file).parent_path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  const std::string file = TemporaryFile("upgraded/layered.voxdoc", "");
  std::string original;
};

} // namespace voxtest
