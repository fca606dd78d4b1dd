// The host of a run without a user: messages go to standard error, questions have fixed answers.
#pragma once

// `windowsFunctionality` answers the question that projects of the first version ask. Everything else is answered Yes
// or OK.
void useBatchHost(bool windowsFunctionality = true);
