#pragma once

// A stand-in for the outside world: it records what the windows showed, copied and opened, and answers
// their questions from queues. A test checks at its end, with Settled(), that every prepared answer was
// asked for and that no question came without one.

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Platform.h"

namespace calvoro {

struct ShownMessage {
    std::string prompt;
    std::string title;
    MessageIcon icon = MessageIcon::NoIcon;

    friend bool operator==(const ShownMessage&, const ShownMessage&) = default;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
    *out << "{prompt \"" << message.prompt << "\", title \"" << message.title << "\", icon "
         << static_cast<int>(message.icon) << "}";
}

/// Message boxes that close at once.
class FakeMessageBoxes : public MessageBoxes {
public:
    std::vector<ShownMessage> shown;  // by Show, in order
    std::vector<ShownMessage> asked;  // by AskYesNo, in order
    std::deque<bool> answers;         // of AskYesNo, next one first
    std::function<void()> whileOpen;  // runs while any box is open
    int questionsWithoutAnswer = 0;

    void Show(std::string_view prompt, std::string_view title, MessageIcon icon) override {
        shown.push_back({std::string(prompt), std::string(title), icon});
        if (whileOpen) whileOpen();
    }

    bool AskYesNo(std::string_view prompt, std::string_view title) override {
        asked.push_back({std::string(prompt), std::string(title), MessageIcon::NoIcon});
        if (whileOpen) whileOpen();
        if (answers.empty()) {
            ++questionsWithoutAnswer;
            return false;
        }
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }

    bool Settled() const { return answers.empty() && questionsWithoutAnswer == 0; }
};

class FakeClipboard : public Clipboard {
public:
    std::string text;                // what is on it now
    std::vector<std::string> calls;  // "Clear", or "SetText " and the text, in order

    void Clear() override {
        text.clear();
        calls.emplace_back("Clear");
    }

    void SetText(std::string_view newText) override {
        text = newText;
        calls.push_back("SetText " + text);
    }
};

class FakeClock : public Clock {
public:
    LocalDate today{2026, 11, 20};

    LocalDate Today() const override { return today; }
};

struct OpenedAddress {
    std::string address;
    std::string parameters;
    std::string directory;
    int windowState = 0;

    friend bool operator==(const OpenedAddress&, const OpenedAddress&) = default;
};

/// A shell that opens nothing; its results are prepared in a queue (33 and above is a success).
class FakeWebOpener : public WebOpener {
public:
    std::vector<OpenedAddress> opened;
    std::deque<int> results;
    int callsWithoutResult = 0;
    std::function<void(int)> failLater;  // of the last call

    int Open(std::string_view address, std::string_view parameters, std::string_view directory,
             int windowState, std::function<void(int)> failedLater) override {
        failLater = std::move(failedLater);
        opened.push_back(
            {std::string(address), std::string(parameters), std::string(directory), windowState});
        if (results.empty()) {
            ++callsWithoutResult;
            return 33;
        }
        const int result = results.front();
        results.pop_front();
        return result;
    }

    bool Settled() const { return results.empty() && callsWithoutResult == 0; }
};

/// A folder that the test chose; empty is "there is none".
class FakeSettingsPlace : public SettingsPlace {
public:
    std::string folder;
    int calls = 0;

    std::string BaseFolder() override {
        ++calls;
        return folder;
    }
};

/// The fakes and the bundle of references that windows take.
class FakePlatform {
public:
    FakeMessageBoxes boxes;
    FakeClipboard clipboard;
    FakeClock clock;
    FakeWebOpener web;
    FakeSettingsPlace place;
    Platform platform{boxes, clipboard, clock, web, place};

    FakePlatform() = default;
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    bool Settled() const { return boxes.Settled() && web.Settled(); }
};

}  // namespace calvoro
