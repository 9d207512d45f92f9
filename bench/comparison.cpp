#include "comparison.h"

#include "instructions.h"
#include "workload.h"

#include <algorithm>
#include <cmath>

namespace zelmbench {
namespace {

// Two builds further apart than this are measured again: a busy machine makes such differences, too.
constexpr double suspicious = 0.03;

// Orders of sums differ, and so do the approximations of reciprocals.
bool areClose(const std::vector<double> &actual, const std::vector<double> &expected, double tolerance) {
    return std::equal(
        actual.begin(), actual.end(), expected.begin(), expected.end(),
        [&](double a, double e) { return std::abs(a - e) <= tolerance * std::max(1.0, std::abs(e)); });
}

std::vector<double> resultsOf(Workload &work, const Contender &contender) {
    work.clearResults();
    contender.run(0);
    return work.results();
}

// What is called for each object is called from here, as the library is: a call from one shared object into
// another takes longer than one that stays within it, about as long as the work of the smallest functions.
void run(const Peer &peer, const Problem &problem) {
    if (peer.run != nullptr) {
        peer.run(problem);
        return;
    }
    const auto runOne = peer.runOne;
    for (std::size_t k = 0; k < problem.count; ++k) {
        runOne(problem, k);
    }
}

std::vector<Contender> contendersOf(const Row &row, const Workload &work, const Field &field) {
    std::vector<Contender> contenders;
    const auto add = [&](const std::string &name, AnyFunction function) {
        contenders.push_back({name, [&work, function](std::size_t turn) { work.call(function, turn); }});
    };
    add(ownName, field.library.find(row.member->name));
    if (field.beside != nullptr) {
        add(besideName, field.beside->find(row.member->name));
    }
    for (const Peer *peer : field.peers.of(row.member->name)) {
        contenders.push_back(
            {peer->name, [&work, peer](std::size_t turn) { run(*peer, work.problem(turn)); }});
    }
    return contenders;
}

// The contenders that compute something else than the first. The peers are the last of them.
std::vector<std::string> wrongOf(const Row &row, Workload &work, const std::vector<Contender> &contenders,
                                 const Field &field) {
    const std::vector<const Peer *> &peers = field.peers.of(row.member->name);
    const std::size_t firstPeer = contenders.size() - peers.size();
    const double tolerance = row.member->elementBytes == 4 ? 5e-3 : 1e-9;
    const std::vector<double> expected = resultsOf(work, contenders.front());
    std::vector<std::string> wrong;
    for (std::size_t c = 1; c < contenders.size(); ++c) {
        const bool isComparable = c < firstPeer || (peers[c - firstPeer]->comparable && !row.member->departs);
        if (isComparable && !areClose(resultsOf(work, contenders[c]), expected, tolerance)) {
            wrong.push_back(contenders[c].name);
        }
    }
    return wrong;
}

// Whole rounds of eight packs of 16, and whole stretches of lists, so that what a call takes beside them
// drops out; of calls for one object a few, and of the largest matrices no more than the widest group.
std::size_t countedObjects(const Row &row) {
    return !row.member->isArray ? 4 : row.count < 1000 ? 16 : 128;
}

} // namespace

PeerTable::PeerTable(const Library *peers) {
    if (peers != nullptr) {
        const auto all = reinterpret_cast<PeersFunction *>(peers->find(peersFunction));
        for (const Peer &peer : all()) {
            peers_[peer.member].push_back(&peer);
        }
    }
}

const std::vector<const Peer *> &PeerTable::of(const std::string &member) const {
    const auto found = peers_.find(member);
    return found != peers_.end() ? found->second : none_;
}

Figures measureRow(const Row &row, const Field &field, const Effort &effort) {
    Workload work(*row.member, row.count);
    const std::vector<Contender> contenders = contendersOf(row, work, field);
    Figures figures;
    figures.wrong = wrongOf(row, work, contenders, field);
    std::vector<double> seconds = fastest(contenders, effort);
    const auto areSuspicious = [&] { return std::abs(seconds[0] / seconds[1] - 1) > suspicious; };
    for (int retry = 0; field.beside != nullptr && retry < 3 && areSuspicious(); ++retry) {
        const std::vector<double> again = fastest(contenders, thorough);
        std::transform(seconds.begin(), seconds.end(), again.begin(), seconds.begin(),
                       [](double one, double other) { return std::min(one, other); });
    }
    for (std::size_t c = 0; c < contenders.size(); ++c) {
        figures.perObject.emplace_back(contenders[c].name,
                                       seconds[c] * 1e9 / static_cast<double>(work.count()));
    }
    return figures;
}

Figures countRow(const Row &row, const Field &field) {
    const std::size_t objects = countedObjects(row);
    const Workload few(*row.member, objects), many(*row.member, 2 * objects);
    const std::vector<Contender> withFew = contendersOf(row, few, field);
    const std::vector<Contender> withMany = contendersOf(row, many, field);
    Figures figures;
    for (std::size_t c = 0; c < withFew.size(); ++c) {
        const std::uint64_t more =
            instructionsOf([&] { withMany[c].run(0); }) - instructionsOf([&] { withFew[c].run(0); });
        figures.perObject.emplace_back(withFew[c].name,
                                       static_cast<double>(more) / static_cast<double>(objects));
    }
    return figures;
}

} // namespace zelmbench
