// Work that may have to wait for a slow disk or share, done beside the session's thread so that windows go on
// answering.
//
// The work itself touches nothing of the session; what follows from its result is done back on the session's
// thread.
#pragma once

#include "platform/errors.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <type_traits>

class Errands : public QObject {
public:
    /// Turns true when nobody waits for an errand any more: a long one looks at it and ends.
    using Forgotten = std::atomic<bool>;

    Errands();
    ~Errands() override; // waits for nobody: an errand stuck in a dead share ends when the share lets go

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

    /// Takes back the errands that have not begun yet.
    void forgetWaiting();
    /// Nothing that was sent so far comes back. Errands sent from now on don't wait for what is still under
    /// way.
    void forget();

private:
    using Job = std::function<std::function<void()>(const Forgotten&)>;
    struct Crew;

    void enqueue(Job job);
    static void work(const std::shared_ptr<Crew>& crew);

    std::shared_ptr<Crew> crew;
};
