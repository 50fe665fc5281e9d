// Child processes of the test: with fewer rights, or to be killed.
#pragma once

#include <QStringList>

#include <functional>
#include <vector>

#include <sys/types.h>

/// A process that runs a routine and ends. The destructor kills it.
class Child {
public:
    explicit Child(const std::function<void()>& routine);
    ~Child() { kill(); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Waits until the routine called tellParent() for the first time.
    void waitUntilTold() const;
    /// Kills it at once and waits until it has ended.
    void kill();
    /// Waits for its end. True when the routine returned without a failed expectation.
    bool succeeded();

private:
    pid_t process = 0;
    int fromChild = -1;
};

/// Called in a child's routine: makes waitUntilTold() return.
void tellParent();

struct User {
    uid_t id;
    std::vector<gid_t> groups; // the first is their own
};

/// Runs the routine in a process of that user, which only root can, and returns its messages.
QStringList messagesAs(const User& user, const std::function<void()>& routine);

/// Runs the routine in a process with the rights of a user who owns nothing, and returns its messages. When
/// run by root it drops root's rights first, since these override all permissions.
QStringList messagesWithoutRights(const std::function<void()>& routine);
