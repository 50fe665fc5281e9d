#include "platform/errands.h"

#include <deque>
#include <mutex>
#include <thread>

namespace {

constexpr int crewSize = 4;

} // namespace

// State shared by the threads and their sender. The threads may outlive the sender, so each keeps it alive.
struct Errands::Crew {
    explicit Crew(QObject* sentFrom)
        : sender(sentFrom)
    {
    }

    std::mutex lock;
    std::deque<Job> waiting;
    int working = 0; // running threads
    Forgotten forgotten = false;
    QObject* sender; // not to be used once forgotten
};

Errands::Errands()
    : crew(std::make_shared<Crew>(this))
{
}

Errands::~Errands() { forget(); }

void Errands::enqueue(Job job)
{
    const std::lock_guard held(crew->lock);
    crew->waiting.push_back(std::move(job));
    if (crew->working < crewSize) {
        ++crew->working;
        std::thread(work, crew).detach();
    }
}

void Errands::work(const std::shared_ptr<Crew>& crew)
{
    for (;;) {
        Job job;
        {
            const std::lock_guard held(crew->lock);
            if (crew->forgotten || crew->waiting.empty()) {
                --crew->working;
                return;
            }
            job = std::move(crew->waiting.front());
            crew->waiting.pop_front();
        }
        auto then = job(crew->forgotten);
        const std::lock_guard held(crew->lock);
        if (!crew->forgotten) {
            const auto deliver = [crew, then = std::move(then)] {
                if (!crew->forgotten)
                    guarded(then);
            };
            QMetaObject::invokeMethod(crew->sender, deliver, Qt::QueuedConnection);
        }
    }
}

void Errands::forgetWaiting()
{
    const std::lock_guard held(crew->lock);
    crew->waiting.clear();
}

void Errands::forget()
{
    {
        const std::lock_guard held(crew->lock);
        crew->forgotten = true;
        crew->waiting.clear();
    }
    crew = std::make_shared<Crew>(this);
}
