// SPDX-License-Identifier: MIT
// Writes the manual pages and the completions of voxbench below a folder, where an installation has them.
//   vox_write_manual share      Exit: 0 all written, 1 a file cannot be written, 2 wrong usage.
#include "voxbench/manual/Completion.h"
#include "voxbench/manual/ManualPages.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <zlib.h>

namespace
{

namespace fs = std::filesystem;

void Require(bool iDone, const fs::path& iFile)
{
  if (!iDone)
    throw std::runtime_error(iFile.string() + " cannot be written");
}

void WriteText(const fs::path& iFile, const std::string& iText)
{
  fs::create_directories(iFile.parent_path());
  std::ofstream stream(iFile, std::ios::binary);
  stream << iText;
  stream.close();
  Require(stream.good(), iFile);
}

//! Compressed, without the name and the time of the file.
void WritePage(const fs::path& iFile, const std::string& iText)
{
  fs::create_directories(iFile.parent_path());
  const gzFile file = gzopen(iFile.c_str(), "wb9");
  Require(file != nullptr, iFile);
  const bool isWritten = gzwrite(file, iText.data(), static_cast<unsigned>(iText.size())) > 0;
  Require(gzclose(file) == Z_OK && isWritten, iFile);
}

void WriteManual(const fs::path& iFolder)
{
  const voxbench::ProgramSyntax syntax = voxbench::ReadSyntax();
  const fs::path pages = iFolder / "man" / "man1";
  fs::remove_all(pages); // a page of a subcommand that is no more
  for (const voxbench::ManualPage& page : voxbench::ManualPages(syntax))
    WritePage(pages / (page.name + ".1.gz"), page.text);
  WriteText(iFolder / "bash-completion" / "completions" / "voxbench", voxbench::BashCompletion(syntax));
  WriteText(iFolder / "zsh" / "site-functions" / "_voxbench", voxbench::ZshCompletion(syntax));
  WriteText(iFolder / "fish" / "vendor_completions.d" / "voxbench.fish", voxbench::FishCompletion(syntax));
}

} // namespace

int main(int iCount, char** iArguments)
{
  if (iCount != 2)
  {
    std::cerr << "Usage: vox_write_manual FOLDER\n";
    return 2;
  }
  try
  {
    WriteManual(iArguments[1]);
    return 0;
  }
  catch (const std::exception& failure)
  {
    std::cerr << "vox_write_manual: " << failure.what() << '\n';
    return 1;
  }
}
