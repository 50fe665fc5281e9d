// Work that may have to wait for a slow disk or share, done on other threads so that the windows stay
// responsive.
//
// The work itself never touches the session; its result is handled back on the session's thread.
#pragma once

#include "platform/errors.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <type_traits>

class Errands : public QObject {
public:
    /// Turns true when an errand's result is no longer wanted; a long errand checks it and ends early.
    using Forgotten = std::atomic<bool>;

    Errands();
    ~Errands() override; // does not wait: an errand stuck in a dead share ends when the share answers

    /// Runs `work(forgotten)` on another thread, up to four at a time, begun in the order they were sent.
    /// `then(result)` runs here, from the event loop, unless forget() came first. Work that raises an error
    /// gives an empty result.
    template <class Work, class Then>
    void send(Work work, Then then)
    {
        enqueue([work, then](const Forgotten& forgotten) -> std::function<void()> {
            using Result = std::invoke_result_t<Work, const Forgotten&>;
            auto result = std::make_shared<Result>();
            ignoringErrors({[&] { *result = work(forgotten); }});
            return [then, result] { then(*result); };
        });
    }

    /// Cancels the errands that have not begun yet.
    void forgetWaiting();
    /// Drops the results of everything sent so far. Errands sent from now on don't wait for running ones.
    void forget();

private:
    using Job = std::function<std::function<void()>(const Forgotten&)>;
    struct Crew;

    void enqueue(Job job);
    static void work(const std::shared_ptr<Crew>& crew);

    std::shared_ptr<Crew> crew;
};
