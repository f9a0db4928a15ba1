#include "cli/unified_diff.h"

#include <algorithm>

namespace tarvex::cli {

namespace {

// Beyond this many differences the search would take more memory than it is worth.
constexpr int kMaxSearchedEdits = 4000;

// Myers' greedy search on the middle part a[0..n) against b[0..m); false when it would
// need more than kMaxSearchedEdits edits.
bool SearchMiddle(const std::string* a, int n, const std::string* b, int m,
                  std::vector<DiffLine>& out) {
    const int max = std::min(n + m, kMaxSearchedEdits);
    const int offset = max + 1;
    std::vector<int> v(2 * max + 3, 0);
    std::vector<std::vector<int>> trace;
    int found = -1;
    for (int d = 0; d <= max && found < 0; ++d) {
        // Only the diagonals -d..d can have been reached: they are all the way back needs.
        trace.emplace_back(v.begin() + offset - d, v.begin() + offset + d + 1);
        for (int k = -d; k <= d; k += 2) {
            int x = (k == -d || (k != d && v[offset + k - 1] < v[offset + k + 1]))
                        ? v[offset + k + 1]
                        : v[offset + k - 1] + 1;
            int y = x - k;
            while (x < n && y < m && a[x] == b[y]) {
                ++x;
                ++y;
            }
            v[offset + k] = x;
            if (x >= n && y >= m) {
                found = d;
                break;
            }
        }
    }
    if (found < 0) return false;

    // Back from the end through the saved rows, collecting the script in reverse.
    std::vector<DiffLine> reversed;
    int x = n;
    int y = m;
    for (int d = found; d > 0; --d) {
        const std::vector<int>& row = trace[d];
        const int k = x - y;
        const bool down = k == -d || (k != d && row[k - 1 + d] < row[k + 1 + d]);
        const int prevK = down ? k + 1 : k - 1;
        const int prevX = row[prevK + d];
        const int prevY = prevX - prevK;
        while (x > prevX && y > prevY) {
            reversed.push_back({' ', &a[--x]});
            --y;
        }
        if (down) {
            reversed.push_back({'+', &b[--y]});
        } else {
            reversed.push_back({'-', &a[--x]});
        }
    }
    while (x > 0 && y > 0) {
        reversed.push_back({' ', &a[--x]});
        --y;
    }
    out.insert(out.end(), reversed.rbegin(), reversed.rend());
    return true;
}

std::string Range(int start, int count) {
    // A hunk of no lines names the line before it.
    if (count == 0) return std::to_string(start - 1) + ",0";
    if (count == 1) return std::to_string(start);
    return std::to_string(start) + "," + std::to_string(count);
}

}  // namespace

std::vector<DiffLine> DiffLines(const std::vector<std::string>& before,
                                const std::vector<std::string>& after) {
    const int n = static_cast<int>(before.size());
    const int m = static_cast<int>(after.size());
    int head = 0;
    while (head < n && head < m && before[head] == after[head])
        ++head;
    int tail = 0;
    while (tail < n - head && tail < m - head && before[n - 1 - tail] == after[m - 1 - tail])
        ++tail;

    std::vector<DiffLine> script;
    for (int i = 0; i < head; ++i)
        script.push_back({' ', &before[i]});
    const int middleA = n - head - tail;
    const int middleB = m - head - tail;
    if (!SearchMiddle(before.data() + head, middleA, after.data() + head, middleB, script)) {
        for (int i = 0; i < middleA; ++i)
            script.push_back({'-', &before[head + i]});
        for (int i = 0; i < middleB; ++i)
            script.push_back({'+', &after[head + i]});
    }
    for (int i = n - tail; i < n; ++i)
        script.push_back({' ', &before[i]});
    return script;
}

std::string UnifiedDiff(const std::string& nameBefore, const std::string& nameAfter,
                        const std::vector<std::string>& before,
                        const std::vector<std::string>& after, int context) {
    const std::vector<DiffLine> script = DiffLines(before, after);
    std::string out;
    const int size = static_cast<int>(script.size());
    int i = 0;
    // Line numbers in the two texts of script[i].
    int lineA = 1;
    int lineB = 1;
    while (i < size) {
        if (script[i].op == ' ') {
            ++lineA;
            ++lineB;
            ++i;
            continue;
        }
        // A hunk: from `context` kept lines before the change to `context` after the last
        // change that lies within twice the context of the one before it.
        const int lead = std::min(context, i > 0 ? i : 0);
        int start = i - lead;
        while (start < i && script[start].op != ' ')
            ++start;
        int end = i;
        int keptRun = 0;
        for (int j = i; j < size; ++j) {
            if (script[j].op == ' ') {
                if (++keptRun > 2 * context) break;
            } else {
                keptRun = 0;
                end = j + 1;
            }
        }
        const int stop = std::min(size, end + context);
        const int firstA = lineA - (i - start);
        const int firstB = lineB - (i - start);
        int countA = 0;
        int countB = 0;
        std::string body;
        for (int j = start; j < stop; ++j) {
            const DiffLine& line = script[j];
            body += line.op;
            body += *line.text;
            body += '\n';
            if (line.op != '+') ++countA;
            if (line.op != '-') ++countB;
        }
        if (out.empty()) out = "--- " + nameBefore + "\n+++ " + nameAfter + "\n";
        out += "@@ -" + Range(firstA, countA) + " +" + Range(firstB, countB) + " @@\n" + body;
        for (int j = i; j < stop; ++j) {
            if (script[j].op != '+') ++lineA;
            if (script[j].op != '-') ++lineB;
        }
        i = stop;
    }
    return out;
}

}  // namespace tarvex::cli
