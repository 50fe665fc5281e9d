#include "faults/children.h"

#include "support/freshStart.h"

#include <csignal>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

const User nobody{65534, {65534}};

int toParent = -1;

/// The number of results reported by the running test, including failed expectations.
int partResults()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

void become(const User& user)
{
    const gid_t own = user.groups.front();
    const bool became = setgroups(user.groups.size(), user.groups.data()) == 0 &&
                        setresgid(own, own, own) == 0 && setresuid(user.id, user.id, user.id) == 0;
    if (!became)
        std::_Exit(2);
}

} // namespace

Child::Child(const std::function<void()>& routine)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    process = fork();
    if (process != 0) {
        close(ends[1]);
        fromChild = ends[0];
        return;
    }
    close(ends[0]);
    toParent = ends[1];
    const int before = partResults();
    routine();
    std::_Exit(partResults() == before ? 0 : 1);
}

void Child::waitUntilTold() const
{
    char told = 0;
    EXPECT_EQ(read(fromChild, &told, 1), 1) << "the child ended before";
}

void Child::kill()
{
    if (process > 0)
        ::kill(process, SIGKILL);
    succeeded();
}

bool Child::succeeded()
{
    if (process <= 0)
        return false;
    int status = 0;
    waitpid(std::exchange(process, 0), &status, 0);
    close(std::exchange(fromChild, -1));
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void tellParent() { EXPECT_EQ(write(toParent, "!", 1), 1); }

QStringList messagesWithoutRights(const std::function<void()>& routine)
{
    return messagesAs(nobody, routine);
}

QStringList messagesAs(const User& user, const std::function<void()>& routine)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    Child child([&] {
        if (geteuid() == 0)
            become(user);
        recorded.messages.clear();
        routine();
        const QByteArray said = recorded.messages.join(u'\n').toUtf8();
        EXPECT_EQ(write(ends[1], said.constData(), size_t(said.size())), said.size());
    });
    close(ends[1]);
    char said[4096];
    const ssize_t length = read(ends[0], said, sizeof said);
    close(ends[0]);
    EXPECT_TRUE(child.succeeded());
    return QString::fromUtf8(said, length).split(u'\n', Qt::SkipEmptyParts);
}
