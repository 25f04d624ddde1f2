<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>「%1」を削除しています... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>ブラウザー拡張機能が見つかりません</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ブラウザー拡張機能</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>拡張機能を検索...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 更新</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>ブラウザー拡張機能をスキャンしています...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>スキャンしています...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 / %2 個の拡張機能を表示中</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>合計 %1 個の拡張機能</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  選択項目を削除 (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  選択項目を削除</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>ブラウザーが実行中です</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>次のブラウザーのバックグラウンド プロセスがまだ実行中です：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>、</translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>「強制終了」をクリックすると、関連するプロセスをすべて自動的に終了して削除を続行します。手動で閉じた場合は「再試行」をクリックしてください。</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; のバックグラウンド プロセスがまだ実行中です。</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>ブラウザーのウィンドウを閉じても、バックグラウンド プロセスが残っている場合があります。「強制終了」をクリックして自動的に終了するか、手動で閉じてから「再試行」をクリックしてください。</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>強制終了して削除</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>完全には終了できませんでした：%1&lt;br&gt;タスク マネージャーで手動で終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>%1 を完全には終了できませんでした。タスク マネージャーで %2 のプロセスをすべて手動で終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>プロセスを終了できません</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>拡張機能の削除</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; を削除しますか？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;%2 の拡張機能管理ページを開き、拡張機能 ID をコピーします&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>拡張機能を削除しています...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ 「%1」を削除しました</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>自動削除に失敗しました</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; を自動的に削除できませんでした</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>%1 の拡張機能管理ページを開きました。&lt;br&gt;拡張機能 ID をクリップボードにコピーしました：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手動で削除したら、&lt;b&gt;更新&lt;/b&gt;をクリックしてください。</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>一括削除</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>選択した &lt;b&gt;%1&lt;/b&gt; 個の拡張機能を削除しますか？</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>%1 個の拡張機能を削除しています...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>削除完了</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 個の拡張機能を削除しました。</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>一覧は自動的に更新されます。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>一部を削除できませんでした</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 件、失敗 &lt;b&gt;%2&lt;/b&gt; 件。</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>失敗した項目（ブラウザーから手動で削除してください）：&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 個の拡張機能</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>ディスク クリーンアップ</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>システムの不要なファイルをスキャンして、ディスク領域を安全に解放します</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>スキャンしています…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 再スキャン</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ すべて選択</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 選択項目をクリーンアップ</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>スキャン完了</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ クリーンアップ完了：&lt;b&gt;%1&lt;/b&gt; を解放しました</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ すべて選択解除</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; カテゴリを選択  ·  解放見込み &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>クリーンアップできるファイル：%1 カテゴリ、合計 %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 カテゴリを選択  ·  解放見込み %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>スキャン中…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows 一時ファイル</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update キャッシュ</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome キャッシュ</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge キャッシュ</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox キャッシュ</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>システム ログ ファイル</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch 先読みキャッシュ</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>縮小表示キャッシュ</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>クラッシュ ダンプ ファイル</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>ごみ箱</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>以前の Windows のバックアップ</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>ディスク ク⁠リ⁠ー⁠ン⁠ア⁠ッ⁠プ</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>不要なファイルを削除</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>インストール済みソフトを管理</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows アプリ</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>UWP アプリを管理</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ブラウザー拡張機能</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>拡張機能を管理</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>システム概要</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● リアルタイム</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>システム情報を読み込んでいます…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>インストール済みの更新</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>リアルタイム パフォーマンス</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>クイック操作</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 コア</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>稼働時間 %1 時間 %2 分</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>稼働時間 %1 日 %2 時間</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>強制削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  選択項目を強制削除</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>強制削除しています：%1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>削除対象をスキャンしています...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  各項目をよく確認してください。高リスクの項目は既定でオフになっています。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>すべて選択解除</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  削除する項目は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>選択した項目を削除しています...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>強制削除が完了しました</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>アプリケーションと関連ファイルを削除しました。</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>インストール先 %1 はシステム フォルダーまたはユーザー フォルダーのため、対象外にしました。</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>削除する項目は見つかりませんでした</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 件の項目  ·  &lt;b&gt;%2&lt;/b&gt; を解放可能</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>開始しています...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>強制削除が完了しました  ·  &lt;b&gt;%1&lt;/b&gt; を解放</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>完了 ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>インストール先</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>アプリ データ</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>レジストリ</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>スタートアップ</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>スタートアップ ショートカット</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>スケジュール タスク</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ 高リスク</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>プロセスを終了しています...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>インストール フォルダーをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>アプリ データをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>レジストリをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>スタートアップ項目をスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>スケジュールされたタスクをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>サービスをスキャンしています...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>インストール フォルダー：%1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>アプリ データ：.../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>レジストリのアンインストール情報：%1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>スタートアップ (レジストリ)：%1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>スタートアップ ショートカット：%1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>スケジュールされたタスク：%1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows サービス：%1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>削除しています：%1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>完了：%1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>ページのリンクを読み込めませんでした。

テクニカル サポートにお問い合わせいただくか、ソフトウェアを再インストールしてください。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>ブラウザーを開けません</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>既定のブラウザーを開けませんでした。

リンクをコピーして手動で開いてください：
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>構成エラー</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Norvale について</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>言語の変更</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>言語を %1 に変更しました。
アプリケーションを今すぐ再起動します。</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>再起動に失敗しました</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>アプリケーションを手動で再起動してください。</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>残留ファイルのクリーンアップ</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  残留ファイルのクリーンアップ</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>残留ファイルをスキャンしています...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>初期化しています...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  残留ファイルは見つかりませんでした！</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>すべて選択解除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>スキャンしています...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 件の項目  ·  &lt;b&gt;%2&lt;/b&gt; を解放可能</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>残留ファイルは見つかりませんでした</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  選択項目をクリーンアップ</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>クリーンアップしています...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>クリーンアップしています... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  クリーンアップ完了 — %1 を解放しました</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>完了 ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>孤立したアプリ データ</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>キャッシュ ファイル</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>ログ ファイル</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>クラッシュ レポート</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>一時ファイル</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>システム概要</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>ディスク クリーンアップ</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows アプリ</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>ブラウザー拡張機能</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Norvale について</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  言語</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  ヘルプ</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  サポート</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>元のサイズに戻す</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>ソフトウェアのアンインストール</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>インストール済みプログラムの管理 · 一括アンインストール · レジストリの残留項目のクリーンアップ</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> 個のアプリ</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> 個が未使用</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>インストール済みのソフトウェアを検索...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ 更新</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>サイズ順</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>日付順</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>名前順</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>発行元</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>インストール日</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>「更新」をクリックすると、インストール済みのプログラムをスキャンします。</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>インストール済みのプログラムをスキャンしています...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>レジストリ エントリを読み込んでいます。しばらくお待ちください...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ 残留ファイルを削除</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>選択項目をアンインストール</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>スキャンしています...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 個のプログラム</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 個を選択  ·  &lt;b&gt;%2&lt;/b&gt; を解放可能</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>アンインストールの確認</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>「%1」をアンインストールしますか？</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>アンインストーラーが見つかりません</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; には専用のアンインストーラーがありません。</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>&lt;b&gt;強制削除&lt;/b&gt;を使うと、インストール フォルダー、レジストリ エントリ、関連ファイルを削除できます。&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ この操作は元に戻せません。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>強制削除…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>アンインストールしています：%1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ アンインストールしました：&lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;残留ファイルを削除 →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ アンインストールに失敗しました：&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>アンインストールに失敗しました</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>専用のアンインストーラーで &lt;b&gt;%1&lt;/b&gt; をアンインストールできませんでした。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;強制削除&lt;/b&gt;では次の処理を行います：&lt;br&gt;• 実行中のプロセスをすべて終了&lt;br&gt;• インストール フォルダーを削除&lt;br&gt;• レジストリ エントリを削除&lt;br&gt;• スタートアップ項目とサービスをクリーンアップ&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ この操作は元に戻せません。実行する前に各項目をよく確認してください。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; のインストール情報が見つかりませんでした。&lt;br&gt;手動で削除してください。</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>一括アンインストール</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>選択した %1 個のアプリをアンインストールしますか？
この操作は元に戻せません。</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>アンインストール</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>削除に失敗しました（管理者権限が必要な可能性があります）</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>システムで保護されたアプリのため、現在のユーザーへの登録のみを解除しました。システム レベルのコンポーネントは再起動後に自動的に復元される場合があります。
完全に削除するには、このプログラムを管理者として実行してください。</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows アプリ</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>アプリを検索...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 更新</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>発行元</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>インストール日</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>アプリを削除しています...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>スキャンしています...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Windows アプリをスキャンしています...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Windows アプリをスキャンしています... %1 個見つかりました</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 / %2 個のアプリを表示中</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>合計 %1 個のアプリ</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  選択項目を削除</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  選択項目を削除 (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 個のアプリを選択中</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Microsoft Edge をアンインストールできません</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge は Windows のシステム コンポーネントのため、この方法ではアンインストールできません。

既定のブラウザーを変更するには、
「設定 → アプリ → 既定のアプリ」で設定してください。</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>アプリの削除</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>一括削除</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>選択した %1 個のアプリを削除しますか？
この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>%1 個のアプリを削除しています...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 個のアプリ</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>「%1」を削除しています...（%2/%3）</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1：%2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 個のアプリを削除しました。更新しています...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>削除に失敗しました</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>どのアプリも削除できませんでした。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>一部を削除できませんでした</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 件、失敗 &lt;b&gt;%2&lt;/b&gt; 件。</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>失敗の詳細：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;プリインストールされたシステム アプリ（Edge、フォトなど）は保護されている場合があり、この方法では削除できません。</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
