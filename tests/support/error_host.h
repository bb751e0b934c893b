// A host that writes down every call of its error callback, and answers as told.
#pragma once

#include <zrproj/zrlibw.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class ErrorHost {
public:
    struct Call {
        unsigned flags, number;
        int product, errorClass, reserved, line;
        std::string module, file, text, helpFile;
    };

    explicit ErrorHost(std::function<int()> answer) : answer_(std::move(answer)), outer_(active()) {
        active() = this;
        ZrSetCallerInstancePtr(&instance_);
    }
    explicit ErrorHost(int answer = 1) : ErrorHost([answer] { return answer; }) {}
    ~ErrorHost() {
        ZrSetCallerInstancePtr(outerInstance_);
        active() = outer_;
    }
    ErrorHost(ErrorHost const&) = delete;
    ErrorHost& operator=(ErrorHost const&) = delete;

    std::vector<Call> calls;

private:
    static ErrorHost*& active() {
        static ErrorHost* host = nullptr;
        return host;
    }

    static std::string textOf(char const* text) { return text ? text : "(null)"; }

    static int ZR_STDCALL callback(_ZRERRINFO const* info) {
        active()->calls.push_back({info->wFlags, info->wError, info->nProduct, info->nClass, info->lReserved,
                                   info->nLine, textOf(info->pszModule), textOf(info->pszFile), textOf(info->pszText),
                                   textOf(info->pszHelpFile)});
        return active()->answer_();
    }

    std::function<int()> answer_;
    ZrCallerInstance instance_{callback, "host.hlp"};
    ErrorHost* outer_;
    ZrCallerInstance* outerInstance_ = ZrGetCallerInstancePtr();
};
