// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Enumerations of the outer application that widgets store for it. The application defines their
/// meaning; the library stores a value and returns it.
namespace RillsAccessible {

/// How a control is reached by an accelerator key.
enum class AcceleratorType { None = 0 };

/// How a control is presented to assistive technology.
enum class AccessibleMode { Default = 0 };

} // namespace RillsAccessible
