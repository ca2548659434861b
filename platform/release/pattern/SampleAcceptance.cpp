#include "SampleAcceptance.h"

#include <boost/math/distributions/binomial.hpp>

#include <algorithm>
#include <cmath>
#include <random>

namespace VelkRelease {

double wrongShareBound(int judged, int wrong, double confidence)
{
    if (judged <= 0 || wrong >= judged)
        return 1;
    return boost::math::binomial_distribution<>::find_upper_bound_on_p(judged, wrong,
                                                                       1 - confidence);
}

int linesForBound(double share, double confidence)
{
    // All right: (1 - share) to the power of the lines must be at most 1 - confidence.
    return int(std::ceil(std::log(1 - confidence) / std::log(1 - share)));
}

SampleAcceptance::SampleAcceptance(const std::vector<Place> &lines, int count, quint64 seed)
    : m_lines(lines)
{
    std::vector<Place> shuffled = lines;
    std::mt19937_64 random(seed);
    std::shuffle(shuffled.begin(), shuffled.end(), random);
    const size_t size = std::min(shuffled.size(), size_t(std::max(0, count)));
    m_drawn.assign(shuffled.begin(), shuffled.begin() + std::ptrdiff_t(size));
    m_rest.assign(shuffled.begin() + std::ptrdiff_t(size), shuffled.end());
    std::sort(m_drawn.begin(), m_drawn.end());
}

SampleAcceptance::State SampleAcceptance::state() const
{
    if (m_refused)
        return State::Refused;
    return m_judged == m_drawn.size() ? State::Accepted : State::Running;
}

SampleAcceptance::Place SampleAcceptance::current() const
{
    return state() == State::Running ? m_drawn[m_judged] : Place();
}

void SampleAcceptance::judge(bool right)
{
    if (state() != State::Running)
        return;
    ++m_judged;
    m_refused = !right;
}

void SampleAcceptance::replace()
{
    if (state() != State::Running)
        return;
    const Place gone = m_drawn[m_judged];
    std::erase(m_lines, gone);
    m_drawn.erase(m_drawn.begin() + std::ptrdiff_t(m_judged));
    if (m_rest.empty())
        return;
    m_drawn.push_back(m_rest.front());
    m_rest.erase(m_rest.begin());
    std::sort(m_drawn.begin() + std::ptrdiff_t(m_judged), m_drawn.end());
}

std::optional<double> SampleAcceptance::bound() const
{
    if (state() != State::Accepted || m_judged == 0)
        return std::nullopt;
    return m_judged == m_lines.size() ? 0 : wrongShareBound(int(m_judged), 0);
}

} // namespace VelkRelease
