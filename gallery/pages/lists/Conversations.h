// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/BaseListModel.h>

/// Made-up conversations. The same arguments give the same ones, so that pictures can be compared.
namespace Conversations {

/// Returns \a count rows, of which the first is conversation number \a first.
std::vector<ModelRow> make(int first, int count);

/// Returns \a row with another last message, which depends on \a step, as one more unread.
ModelRow answered(ModelRow row, int step);

/// Returns \a rows of which the share of \a percent, rounded up and evenly spread, is answered.
std::vector<ModelRow> withShareAnswered(std::vector<ModelRow> rows, int percent, int step);

} // namespace Conversations
