#pragma once

#include <pthread.h>
#include <sched.h>

#include <exception>
#include <functional>

// A thread for work that start-up overlaps with its own. On an otherwise idle
// machine Linux often starts a new thread on its creator's processor and runs
// it there first, so the creator waits (until the scheduler moves one of the
// two, milliseconds) for the very work it meant to overlap. This one starts on
// another processor where the process may use one, and may be moved anywhere
// once it runs. Waited for when destroyed.
class SideThread {
public:
    explicit SideThread(std::function<void()> work);
    ~SideThread();
    SideThread(const SideThread&) = delete;
    SideThread& operator=(const SideThread&) = delete;

    // Waits for the work; an exception it ended with is thrown here.
    void join();

private:
    static void* run(void* self);

    std::function<void()> work;
    std::exception_ptr failure;
    cpu_set_t allowed;     // the processors the creator may use
    bool confined = false;  // started on those but the creator's, until it runs
    pthread_t thread{};
    bool joinable = false;
};
