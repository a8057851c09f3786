#include "SideThread.h"

#include <utility>

SideThread::SideThread(std::function<void()> task) : work(std::move(task)) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    const int here = sched_getcpu();
    if (sched_getaffinity(0, sizeof allowed, &allowed) == 0 && here >= 0 && here < CPU_SETSIZE &&
        CPU_ISSET(here, &allowed) && CPU_COUNT(&allowed) > 1) {
        cpu_set_t elsewhere = allowed;
        CPU_CLR(here, &elsewhere);
        confined = pthread_attr_setaffinity_np(&attributes, sizeof elsewhere, &elsewhere) == 0;
    }
    joinable = pthread_create(&thread, &attributes, &SideThread::run, this) == 0;
    pthread_attr_destroy(&attributes);
    // Where the processors cannot be chosen, anywhere; where no thread can be made, here.
    if (!joinable) {
        confined = false;
        joinable = pthread_create(&thread, nullptr, &SideThread::run, this) == 0;
    }
    if (!joinable) run(this);
}

SideThread::~SideThread() {
    if (joinable) pthread_join(thread, nullptr);
}

void SideThread::join() {
    if (joinable) pthread_join(thread, nullptr);
    joinable = false;
    if (failure) std::rethrow_exception(std::exchange(failure, nullptr));
}

void* SideThread::run(void* self) {
    auto* side = static_cast<SideThread*>(self);
    if (side->confined) sched_setaffinity(0, sizeof side->allowed, &side->allowed);
    try {
        side->work();
    } catch (...) {
        side->failure = std::current_exception();
    }
    return nullptr;
}
