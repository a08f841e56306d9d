// A slim lock held for a scope; the win32 thread model of the compiler's library has no std::mutex.
#pragma once

#include <windows.h>

class Lock {
 public:
  Lock() = default;
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  friend class Locked;
  SRWLOCK lock_ = SRWLOCK_INIT;
};

class Locked {
 public:
  explicit Locked(Lock& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_.lock_); }
  ~Locked() { ReleaseSRWLockExclusive(&lock_.lock_); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  Lock& lock_;
};
