// SPDX-License-Identifier: MIT
#include "voxbench/store/UnfinishedFile.h"

#include <unistd.h>
#include <utility>

namespace voxbench
{
namespace
{

constexpr int kEndingSignals[] = {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM, SIGXCPU, SIGXFSZ};

UnfinishedFile* g_youngest = nullptr; //!< changes only while the signals wait

sigset_t EndingSignals()
{
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : kEndingSignals)
    sigaddset(&set, signal);
  return set;
}

} // namespace

struct EndingSignal
{
  //! Only what may be done in a signal. The signal then meets what it met before: the end of the program.
  static void Take(int iSignal)
  {
    for (const UnfinishedFile* file = g_youngest; file != nullptr; file = file->_Older)
      unlink(file->_Path.c_str());
    raise(iSignal);
  }
};

void RemoveUnfinishedFilesWhenEnded()
{
  struct sigaction action
  {
  };
  action.sa_handler = EndingSignal::Take;
  action.sa_mask = EndingSignals();
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : kEndingSignals)
  {
    struct sigaction before
    {
    };
    if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler == SIG_DFL)
      sigaction(signal, &action, nullptr);
  }
}

UnfinishedFile::UnfinishedFile(std::string iPath) : _Path(std::move(iPath)), _Older(g_youngest)
{
  const EndingSignalsWait wait;
  g_youngest = this;
}

UnfinishedFile::~UnfinishedFile()
{
  const EndingSignalsWait wait;
  unlink(_Path.c_str());
  g_youngest = _Older;
}

EndingSignalsWait::EndingSignalsWait()
{
  const sigset_t set = EndingSignals();
  sigprocmask(SIG_BLOCK, &set, &_Before);
}

EndingSignalsWait::~EndingSignalsWait()
{
  sigprocmask(SIG_SETMASK, &_Before, nullptr);
}

} // namespace voxbench
