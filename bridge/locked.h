// A slim lock held for a scope, and a signal to wait for; the win32 thread model of the compiler's library
// has neither std::mutex nor std::condition_variable.
#pragma once

#include <windows.h>

class Lock {
 public:
  Lock() = default;
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  friend class Locked;
  friend class Signal;
  SRWLOCK lock_ = SRWLOCK_INIT;
};

class Locked {
 public:
  explicit Locked(Lock& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_.lock_); }
  ~Locked() { ReleaseSRWLockExclusive(&lock_.lock_); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  friend class Signal;
  Lock& lock_;
};

class Signal {
 public:
  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  void give() { WakeAllConditionVariable(&condition_); }
  // Lets go of the lock, waits for the signal, and takes the lock again; it may also return without one.
  void wait(Locked& locked) { SleepConditionVariableSRW(&condition_, &locked.lock_.lock_, INFINITE, 0); }

 private:
  CONDITION_VARIABLE condition_ = CONDITION_VARIABLE_INIT;
};
