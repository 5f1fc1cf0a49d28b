#pragma once

// Version of the instrument's software, as pages, files and services tell it.

constexpr int kSoftwareMajor = 2;
constexpr int kSoftwareMinor = 2;
constexpr int kSoftwareBuild = 6;
constexpr char kSoftwareStamp[] = "2024-0118-1615"; // of the build
