// SPDX-License-Identifier: MIT
#include "base/system/StartedProcess.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velmora {

void StartedProcess::Watch(ProcessNumber number) {
  Release();
  m_number = number;
  // The C library's own call of that name is not declared for C++.
  m_handle = static_cast<int>(::syscall(SYS_pidfd_open, static_cast<pid_t>(number), 0U));
}

bool StartedProcess::IsRunning() const {
  if (m_handle == None) return false;
  // The handle of a process can be read once the process has ended.
  pollfd ended{.fd = m_handle, .events = POLLIN, .revents = 0};
  return ::poll(&ended, 1, 0) == 0;
}

void StartedProcess::Release() {
  if (m_handle != None) ::close(m_handle);
  m_handle = None;
}

}  // namespace velmora
