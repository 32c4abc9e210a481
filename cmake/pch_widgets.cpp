// SPDX-License-Identifier: MIT
// Holds nothing: it only gives the precompiled header a target.
