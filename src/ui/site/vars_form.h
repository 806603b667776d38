// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <QDialog>

namespace tarnwick {

/// Vocabulary: the form `vars`, a button and a picture under the product's name. Nothing opens it; it stands here
/// because the forms of the design are all there under their names, for whoever builds on them.
class VarsForm final : public QDialog {
  Q_OBJECT

 public:
  /// The picture is the product's logo, from the folder "images" of `programFolder`.
  explicit VarsForm(const std::string& programFolder, QWidget* parent = nullptr);

 private:
  void Form_Load();
};

}  // namespace tarnwick
