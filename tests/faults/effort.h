// The amount of work of the fault tests: a little in every run, much more with --long.
#pragma once

struct Effort {
    int kills = 60;        // for all writers together
    int unfinished = 1;    // of them that must interrupt a write; with fewer the test proves nothing
    int seconds = 2;       // during which two programs share a folder
    int crowdSeconds = 3;  // during which three programs work in one folder
    int lengthsApart = 61; // step between the lengths at which the disk is full while a picture is written
};

extern Effort effort;
