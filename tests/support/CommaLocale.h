// Guard: the C runtime writes and reads numbers with a decimal comma while it lives, as in a process whose host has
// chosen the user's language.
#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <string>

class CommaLocale
{
public:
    CommaLocale() : m_before(std::setlocale(LC_NUMERIC, NULL))
    {
        std::setlocale(LC_NUMERIC, "German");
        EXPECT_STREQ(",", std::localeconv()->decimal_point);
    }

    ~CommaLocale() { std::setlocale(LC_NUMERIC, m_before.c_str()); }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::string m_before;
};
