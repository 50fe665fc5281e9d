// Processes of the test's own: with fewer rights, or to be killed.
#pragma once

#include <QStringList>

#include <functional>

#include <sys/types.h>

/// A process that runs a routine and ends. Its destructor kills it.
class Child {
public:
    explicit Child(const std::function<void()>& routine);
    ~Child() { kill(); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Waits until the routine called tellParent() for the first time.
    void waitUntilTold() const;
    /// Kills it where it stands and waits until it is gone.
    void kill();
    /// Waits for its end. True when the routine came back without a failed expectation.
    bool succeeded();

private:
    pid_t process = 0;
    int fromChild = -1;
};

/// In a child's routine: lets waitUntilTold() come back.
void tellParent();

/// Runs the routine with the rights of a user who owns nothing, and tells the messages that came. Run by root
/// it drops root's rights first, for these would pass over all others.
QStringList messagesWithoutRights(const std::function<void()>& routine);
