// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace Quillory {

/// A limit of this process, for as long as it lives.
class Limit
{
public:
    Limit(int resource, rlim_t most)
        : m_resource(resource)
    {
        getrlimit(m_resource, &m_before);
        const rlimit limit { most, m_before.rlim_max };
        setrlimit(m_resource, &limit);
    }
    ~Limit() { setrlimit(m_resource, &m_before); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    int m_resource;
    rlimit m_before {};
};

/// No file grows beyond its size, as on a full disk.
class NoRoom : public Limit
{
public:
    explicit NoRoom(rlim_t most = 512)
        : Limit(RLIMIT_FSIZE, most)
    {
        std::signal(SIGXFSZ, SIG_IGN);
    }
};

} // namespace Quillory
