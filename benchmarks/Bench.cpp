#include "Bench.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>

namespace bench
{

namespace
{

void Call(const std::function<void()>& function)
{
    if (function)
    {
        function();
    }
}

double Seconds(const Work& work)
{
    Call(work.prepare);
    const auto start = std::chrono::steady_clock::now();
    work.run();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    Call(work.finish);
    return taken.count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double Ratio(const Figure& figure)
{
    return figure.reference > 0 ? figure.value / figure.reference : figure.value;
}

const char* Verdict(const Figure& figure)
{
    if (figure.limit <= 0)
    {
        return "";
    }
    return Ratio(figure) <= figure.limit ? "ok" : "ABOVE";
}

} // namespace

double MedianSeconds(int runs, const std::function<void()>& prepare, const std::function<void()>& work,
                     const std::function<void()>& finish)
{
    const Work all = {prepare, work, finish};
    Seconds(all);
    std::vector<double> taken;
    for (int i = 0; i < runs; ++i)
    {
        taken.push_back(Seconds(all));
    }
    return Median(taken);
}

Pair MedianSeconds(int runs, const Work& ours, const Work& bare)
{
    Seconds(bare);
    Seconds(ours);
    std::vector<double> oursTaken;
    std::vector<double> bareTaken;
    for (int i = 0; i < runs; ++i)
    {
        bareTaken.push_back(Seconds(bare));
        oursTaken.push_back(Seconds(ours));
    }
    return {Median(oursTaken), Median(bareTaken)};
}

void Report::Add(const Figure& figure)
{
    m_figures.push_back(figure);
    std::printf("    measured: %s\n", figure.name.c_str());
    std::fflush(stdout);
}

void Report::Print() const
{
    std::printf("\n%-52s %12s %12s %-5s %7s %7s %-5s  %s\n", "figure", "ours", "beside", "unit", "ratio", "limit", "",
                "beside what");
    for (const Figure& figure : m_figures)
    {
        std::printf("%-52s %12.3f %12.3f %-5s %7.2f %7.2f %-5s  %s\n", figure.name.c_str(), figure.value,
                    figure.reference, figure.unit.c_str(), Ratio(figure), figure.limit, Verdict(figure),
                    figure.beside.c_str());
    }
}

bool Report::WriteJson(const std::string& path) const
{
    std::ofstream out(path, std::ios::trunc);
    out << "[\n";
    for (std::size_t i = 0; i < m_figures.size(); ++i)
    {
        const Figure& figure = m_figures[i];
        out << "  {\"name\": \"" << figure.name << "\", \"unit\": \"" << figure.unit
            << "\", \"value\": " << figure.value << ", \"beside\": \"" << figure.beside
            << "\", \"reference\": " << figure.reference << ", \"ratio\": " << Ratio(figure)
            << ", \"limit\": " << figure.limit << "}" << (i + 1 < m_figures.size() ? "," : "") << "\n";
    }
    out << "]\n";
    return static_cast<bool>(out.flush());
}

} // namespace bench
