/// \file
/// The one export macro of the library. Whatever does not carry it stays inside.
#pragma once

#if defined(_WIN32)
#if defined(MQPOSTCOMMON_BUILD)
#define MQPOSTCOMMON_API __declspec(dllexport)
#else
#define MQPOSTCOMMON_API __declspec(dllimport)
#endif
#else
#define MQPOSTCOMMON_API __attribute__((visibility("default")))
#endif
