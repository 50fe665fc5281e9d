#include "platform/fileRights.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <tuple>
#include <utility>

namespace {

// The system's binary form of an access list: a version, then the entries, all little-endian.
constexpr const char* listName = "system.posix_acl_access";
constexpr quint32 listVersion = 2;
constexpr size_t headLength = 4;
constexpr size_t entryLength = 8;
constexpr size_t longestList = 65536; // bytes

enum Tag : quint16 { owner = 1, user = 2, owningGroup = 4, group = 8, mask = 16, others = 32 };
constexpr quint32 nobodyNamed = 0xFFFFFFFF;

constexpr quint16 reading = 4;
constexpr quint16 writing = 2;
constexpr quint16 entering = 1;

using AccessList = std::vector<AccessEntry>;

AccessList decoded(const QByteArray& bytes)
{
    const auto* head = reinterpret_cast<const uchar*>(bytes.constData());
    const auto size = size_t(bytes.size());
    if (size < headLength || qFromLittleEndian<quint32>(head) != listVersion)
        return {};
    AccessList list;
    for (size_t at = headLength; at + entryLength <= size; at += entryLength)
        list.push_back({qFromLittleEndian<quint16>(head + at), qFromLittleEndian<quint16>(head + at + 2),
                        qFromLittleEndian<quint32>(head + at + 4)});
    return list;
}

QByteArray encoded(const AccessList& list)
{
    QByteArray bytes(qsizetype(headLength + entryLength * list.size()), Qt::Uninitialized);
    auto* at = reinterpret_cast<uchar*>(bytes.data());
    qToLittleEndian(listVersion, at);
    at += headLength;
    for (const AccessEntry& entry : list) {
        qToLittleEndian(entry.tag, at);
        qToLittleEndian(entry.rights, at + 2);
        qToLittleEndian(entry.id, at + 4);
        at += entryLength;
    }
    return bytes;
}

quint16& rightsFor(AccessList& list, Tag tag)
{
    return std::find_if(list.begin(), list.end(), [tag](const AccessEntry& e) { return e.tag == tag; })
        ->rights;
}

bool hasMask(const AccessList& list)
{
    return std::any_of(list.begin(), list.end(), [](const AccessEntry& e) { return e.tag == mask; });
}

bool belongsToGroupClass(const AccessEntry& entry)
{
    return entry.tag == user || entry.tag == owningGroup || entry.tag == group;
}

/// The rights as a list without a mask: the mask is applied to the entries that it limits.
AccessList withoutMask(const FileRights& rights)
{
    AccessList list = rights.list;
    if (list.empty())
        return {{owner, quint16(rights.mode >> 6 & 7), nobodyNamed},
                {owningGroup, quint16(rights.mode >> 3 & 7), nobodyNamed},
                {others, quint16(rights.mode & 7), nobodyNamed}};
    if (!hasMask(list))
        return list;
    const quint16 limit = rightsFor(list, mask);
    for (AccessEntry& entry : list) {
        if (belongsToGroupClass(entry))
            entry.rights &= limit;
    }
    std::erase_if(list, [](const AccessEntry& e) { return e.tag == mask; });
    return list;
}

/// True when a user without an entry of their own has these rights whatever groups they belong to.
bool everybodyHas(const AccessList& list, quint16 rights)
{
    return std::all_of(list.begin(), list.end(), [rights](const AccessEntry& e) {
        return e.tag == owner || e.tag == user || (e.rights & rights) == rights;
    });
}

void name(AccessList& list, Tag tag, quint32 id, quint16 rights)
{
    if (everybodyHas(list, rights))
        return;
    const auto known = std::find_if(list.begin(), list.end(),
                                    [=](const AccessEntry& e) { return e.tag == tag && e.id == id; });
    if (known == list.end())
        list.push_back({tag, rights, id});
    else
        known->rights |= rights;
}

void addMask(AccessList& list)
{
    quint16 rights = 0;
    for (const AccessEntry& entry : list)
        rights |= belongsToGroupClass(entry) ? entry.rights : 0;
    list.push_back({mask, rights, nobodyNamed});
    std::sort(list.begin(), list.end(), [](const AccessEntry& one, const AccessEntry& other) {
        return std::tie(one.tag, one.id) < std::tie(other.tag, other.id);
    });
}

bool namesAnybody(const AccessList& list)
{
    return std::any_of(list.begin(), list.end(),
                       [](const AccessEntry& e) { return e.tag == user || e.tag == group; });
}

/// The list for a file that has another owner or group: entries grant the wanted owner and group their
/// rights.
AccessList listUnder(const FileRights& rights, bool sameOwner, bool sameGroup)
{
    if (sameOwner && sameGroup && hasMask(rights.list))
        return rights.list;
    AccessList list = withoutMask(rights);
    if (!sameGroup) {
        const quint16 former = std::exchange(rightsFor(list, owningGroup), rightsFor(list, others));
        name(list, group, rights.group, former);
    }
    if (!sameOwner) {
        name(list, user, rights.owner, rightsFor(list, owner));
        rightsFor(list, owner) |= quint16(reading | writing | (S_ISDIR(rights.mode) ? entering : 0));
    }
    if (namesAnybody(list))
        addMask(list);
    return list;
}

/// The nine permission bits; the middle three are the mask's, or the owning group's where there is no mask.
mode_t modeOf(AccessList list, Tag middle)
{
    return mode_t(rightsFor(list, owner) << 6 | rightsFor(list, middle) << 3 | rightsFor(list, others));
}

/// Sets the list; true when the disk accepted it. A list without a mask needs only the mode.
bool giveList(int descriptor, const AccessList& list)
{
    if (!hasMask(list)) {
        ::fremovexattr(descriptor, listName); // a default list of the folder may have set one
        return true;
    }
    const QByteArray bytes = encoded(list);
    return ::fsetxattr(descriptor, listName, bytes.constData(), size_t(bytes.size()), 0) == 0;
}

} // namespace

std::optional<FileRights> rightsOf(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return {};
    QByteArray list(longestList, Qt::Uninitialized);
    const ssize_t length = ::getxattr(name.constData(), listName, list.data(), longestList);
    list.truncate(std::max<ssize_t>(length, 0));
    return FileRights{status.st_uid, status.st_gid, status.st_mode, decoded(list)};
}

std::optional<FileRights> rightsForNewFile(const QString& like)
{
    std::optional<FileRights> rights = rightsOf(like);
    if (rights)
        rights->mode |= S_IRUSR | S_IWUSR;
    if (rights && !rights->list.empty())
        rightsFor(rights->list, owner) |= reading | writing;
    return rights;
}

bool giveRights(int descriptor, const FileRights& rights)
{
    struct stat made = {};
    ::fstat(descriptor, &made);
    if (made.st_uid != rights.owner || made.st_gid != rights.group) {
        if (::fchown(descriptor, rights.owner, rights.group) != 0)
            static_cast<void>(::fchown(descriptor, uid_t(-1), rights.group));
        ::fstat(descriptor, &made);
    }
    const AccessList list = listUnder(rights, made.st_uid == rights.owner, made.st_gid == rights.group);
    const bool listed = giveList(descriptor, list);
    const mode_t mode = modeOf(list, listed && hasMask(list) ? mask : owningGroup);
    const mode_t inherits = S_ISDIR(rights.mode) ? rights.mode & S_ISGID : 0;
    static_cast<void>(::fchmod(descriptor, inherits | mode));
    ::fstat(descriptor, &made);
    return listed && (made.st_mode & mode) == mode;
}
